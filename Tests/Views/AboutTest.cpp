// SPDX-License-Identifier: Apache-2.0
#include "Platform/Resources.h"
#include "Tests/Views/ViewsFixture.h"
#include "Views/About/OpenSourceViewController.h"
#include "Views/About/OrnisLicenseViewController.h"
#include "Views/About/VersionViewController.h"

#include <QColor>

#include <utility>

namespace lodestar::testing
{
namespace
{

using Files = std::vector<std::pair<std::string, std::optional<std::string>>>;

/// Rich texts by name, and the folder of notices in the order given; a file without content cannot be read.
class PackagedTexts : public Resources
{
public:
    std::map<std::string, std::string> texts;
    std::optional<Files> notices;

    std::optional<std::string> contents(const std::string& name, const std::string& extension) const override
    {
        const auto found = texts.find(name + "." + extension);
        return found != texts.end() ? std::optional(found->second) : std::nullopt;
    }
    std::optional<std::vector<std::string>> filesInFolder(const std::string& folder) const override
    {
        if (folder != "OpenSourceLicenses" || !notices) {
            return std::nullopt;
        }
        std::vector<std::string> names;
        for (const auto& [name, content] : *notices) {
            names.push_back(name);
        }
        return names;
    }
    std::optional<std::string> contentsInFolder(const std::string& /*folder*/, const std::string& file) const override
    {
        for (const auto& [name, content] : *notices) {
            if (name == file) {
                return content;
            }
        }
        return std::nullopt;
    }
};

class AboutTest : public ViewsTest
{
protected:
    void SetUp() override
    {
        ViewsTest::SetUp();
        auto texts = std::make_unique<PackagedTexts>();
        package = texts.get();
        Resources::install(std::move(texts));
    }

    /// A loaded screen; what it reads is there once its text is.
    template <typename Screen>
    static std::shared_ptr<Screen> load()
    {
        const auto screen = makeController<Screen>();
        screen->loadViewIfNeeded();
        return screen;
    }
    /// What is read in the background has been read when nobody else holds the screen.
    template <typename Screen>
    static bool waitUntilRead(const std::shared_ptr<Screen>& screen)
    {
        return runUntil([&] { return screen.use_count() == 1; });
    }

    PackagedTexts* package = nullptr;
};
TEST_F(AboutTest, NoticesStandInTheFoldersOrderBelowTheirShortenedNames)
{
    package->notices = Files{{"zlib.txt", "Z\n"}, {"gone.txt", std::nullopt}, {"libxml2.txt", "X \xC3\xA9"}};
    const auto screen = load<OpenSourceViewController>();
    EXPECT_EQ(screen->title(), "Open Source Licenses");
    const QString expected = QStringLiteral("zlib\nZ\n\n\n\ngone\n\n\n\nlibxml2\nX é\n\n\n");
    EXPECT_TRUE(runUntil([&] { return screen->licenseText()->attributedText() == expected; }));

    package->notices = std::nullopt;
    const auto unreadable = load<OpenSourceViewController>();
    ASSERT_TRUE(waitUntilRead(unreadable));
    drain();
    EXPECT_EQ(unreadable->licenseText()->attributedText(), "");
    EXPECT_TRUE(unreadable->licenseText()->pieces().isEmpty());
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
    outlet.setDocument(readRichText("{\\rtf1{\\fonttbl{\\f0 '\\'3b\\'22<x>;}}{\\colortbl;\\red19\\green60\\blue91;}"
                                    "\\f0\\fs34\\cf1\\b <i>\\line\\plain  & a}"));
    const QColor paper(Qt::white);
    const QColor ink("#1A2027");
    const QString light = outlet.markup(0, 2, paper, ink);
    EXPECT_TRUE(
        light.contains("font-size:34px;color:#133c5b;font-family:'Avenir Book';font-weight:bold\">&lt;i&gt;<br/>"))
        << light.toStdString();
    EXPECT_TRUE(light.contains("font-size:24px;color:#1a2027;font-family:'Avenir Book'\"> &amp; a"))
        << light.toStdString();
    EXPECT_EQ(outlet.markup(1, 1, paper, ink), "");
    EXPECT_EQ(outlet.markup(-1, 1, paper, ink), "");

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
