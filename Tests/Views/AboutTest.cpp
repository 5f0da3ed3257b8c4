// SPDX-License-Identifier: Apache-2.0
#include "Tests/Views/ViewsFixture.h"
#include "Views/About/OpenSourceViewController.h"
#include "Views/About/RichDocumentOutlet.h"

namespace lodestar::testing
{
namespace
{

/// The folder of notices; one of the files cannot be read.
class PackagedNotices : public Resources
{
public:
    std::optional<std::vector<std::string>> filesInFolder(const std::string& folder) const override
    {
        EXPECT_EQ(folder, "OpenSourceLicenses");
        return {{"zlib.txt", "gone.txt", "libxml2.txt"}};
    }
    std::optional<std::string> contentsInFolder(const std::string& /*folder*/, const std::string& file) const override
    {
        return file == "gone.txt" ? std::nullopt : std::optional("é of " + file);
    }
};

using AboutTest = ViewsTest;

TEST_F(AboutTest, NoticesStandInTheFoldersOrderBelowTheirShortenedNames)
{
    Resources::install(std::make_unique<PackagedNotices>());
    const auto screen = makeController<OpenSourceViewController>();
    screen->loadViewIfNeeded();
    // What is read in the background has been read when nobody else holds the screen.
    EXPECT_TRUE(runUntil([&] { return screen.use_count() == 1; }));
    drain();
    EXPECT_EQ(screen->licenseText()->attributedText(),
              QStringLiteral("zlib\né of zlib.txt\n\n\ngone\n\n\n\nlibxml2\né of libxml2.txt\n\n\n"));
}

TEST_F(AboutTest, ALongTextIsCutIntoPiecesThatAreItAgain)
{
    QString text = QStringLiteral("\n\n\nno empty line for long: ") + QString(9000, QLatin1Char('x'));
    for (int i = 0; i < 2000; ++i) {
        text += QStringLiteral("\n\nParagraph %1,\nof two lines.").arg(i);
    }
    text += QLatin1String("\n\n\n");
    TextViewOutlet outlet;
    outlet.setAttributedText(QStringLiteral("earlier"));
    outlet.setAttributedText(text);
    ASSERT_TRUE(runUntil([&] { return !outlet.pieces().isEmpty(); }));
    EXPECT_GT(outlet.pieces().size(), 60);
    QString whole = outlet.pieces().join(QLatin1Char('\n'));
    for (const QString& piece : outlet.pieces()) {
        EXPECT_LE(piece.size(), 4000);
    }
    // Only inside the line that is too long were feeds added.
    EXPECT_TRUE(whole.endsWith(text.mid(text.indexOf(QLatin1String("\n\nParagraph 0,")))));
    EXPECT_EQ(whole.remove(QLatin1Char('\n')), text.remove(QLatin1Char('\n')));
}

TEST_F(AboutTest, MarkupEscapesScalesAndStaysReadable)
{
    RichDocumentOutlet outlet;
    outlet.setDocument(
        readRichText("{\\rtf1{\\colortbl;\\red19\\green60\\blue91;}\\fs34\\cf1\\b <i>\\line\\plain  & a}"));
    const QColor paper(Qt::white);
    const QColor ink("#1A2027");
    ASSERT_EQ(outlet.paragraphs().size(), 1);
    const std::string light = RichDocumentOutlet::markup(outlet.paragraphs()[0], 2, paper, ink).toStdString();
    EXPECT_THAT(light, HasSubstr("font-size:34px;color:#133c5b;font-weight:bold\">&lt;i&gt;<br/>"));
    EXPECT_THAT(light, HasSubstr("font-size:24px;color:#1a2027\"> &amp; a"));

    const QColor night("#0F1317");
    const QColor lightInk("#ECEFF3");
    EXPECT_EQ(readableColor(Qt::black, night, lightInk), lightInk);
    EXPECT_EQ(readableColor(QColor("#1A2027"), night, lightInk), lightInk) << "a grey with a breath of blue";
    EXPECT_EQ(readableColor(Qt::white, paper, ink), ink);
    EXPECT_EQ(readableColor(QColor("#71C7F4"), night, lightInk), QColor("#71C7F4"));
    const QColor blue = readableColor(QColor("#133C5B"), night, lightInk);
    EXPECT_GT(blue.lightnessF(), 0.4F);
    EXPECT_NEAR(blue.hslHueF(), QColor("#133C5B").hslHueF(), 0.02F);
}

} // namespace
} // namespace lodestar::testing
