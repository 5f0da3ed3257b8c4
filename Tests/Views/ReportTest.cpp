// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/FileSaver.h"
#include "Kit/Core/Toasts.h"
#include "Kit/Core/WindowDialogs.h"
#include "Tests/Views/ReadingFixture.h"
#include "Views/ManagedSystems/MSDetailViewController.h"
#include "Views/Report/ServiceReportController.h"
#include "Views/ServiceableEvents/SEDetailViewController.h"

#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QTextDocument>

namespace lodestar::testing
{
namespace
{

using ::testing::Not;

constexpr auto hostileText =
    "<b>fan~1</b> [x](https://evil.example) *lost*: see 192.0.2.7\n# now @all, www.evil.example";

std::string copied()
{
    return QGuiApplication::clipboard()->text().toStdString();
}

class ReportTest : public ReadingTest
{
protected:
    ReportTest()
    {
        corvel->setVersion("V3R2.4.0.SP1");
        corvel->setRestData(feeds(
            {{"ServiceableEvent", Feed(parse("<feed>" +
                                             entry("ServiceableEvent", std::string(R"(
                        <problemNumber>1042</problemNumber><callHomeEnabled>true</callHomeEnabled>
                        <ApprovalState>Pending approval</ApprovalState><referenceCode>X417-2208</referenceCode>
                        <referenceCodeExtension>0000A3C1</referenceCodeExtension><problemState>Open</problemState>
                        <firmwareFix>Level 2.4.1</firmwareFix>
                        <firstReportedTimestamp>1773301260</firstReportedTimestamp>
                        <lastReportedTimestamp>soon</lastReportedTimestamp><duplicateCount>3</duplicateCount>
                        <failingManagedSystemNode><hostName>helios-03</hostName><managedTypeModelSerial>
                        <MachineType>4210</MachineType><Model>M16</Model><SerialNumber>06A17C2</SerialNumber>
                        </managedTypeModelSerial></failingManagedSystemNode><shortDescription><![CDATA[)") +
                                                                           hostileText + R"(]]></shortDescription>
                        <fieldReplaceableUnits><FieldReplaceableUnit><partNumber>PS-1400-07</partNumber>
                        <locationCode>drawer 1, supply 2</locationCode></FieldReplaceableUnit></fieldReplaceableUnits>)") +
                                             "</feed>"))},
             {"ManagedSystem",
              Feed(parse("<feed>" +
                         system("helios-03", "error", "true",
                                "<PrimaryIPAddress>fe80::61:1</PrimaryIPAddress><ReferenceCode>X417</ReferenceCode>"
                                "<MachineTypeModelAndSerialNumber><SerialNumber>06A17C2</SerialNumber>"
                                "</MachineTypeModelAndSerialNumber>") +
                         "</feed>"))}}));
        report(corvel, complete());
    }
    template <typename Detail>
    std::shared_ptr<Detail> show(std::string_view type)
    {
        auto detail = makeController<Detail>();
        detail->setRootXML(contentOf(feedOfType(*corvel, type).entries().front(), type));
        return push(detail);
    }
    static ServiceReportController* openReport(DetailViewController& detail)
    {
        detail.openReport();
        return qobject_cast<ServiceReportController*>(detail.semiModal()->controller());
    }

    const CorvelRef corvel = addCorvel("Harbour B", "harbour-b.example");
    const ScratchFolder saved;
};

TEST_F(ReportTest, AnEventsReportTellsAllThatIsKnownAndNoAddressUnlessAsked)
{
    setZone("HIGH-5:30");
    const auto detail = show<SEDetailViewController>("ServiceableEvent");
    // What the report tells stays that of the screen, whatever is read later.
    corvel->setRestData(feeds({{"ManagedSystem", feedOfType(*corvel, "ManagedSystem")}}));
    ServiceReportController* const sheet = openReport(*detail);
    const std::string text = sheet->text().toStdString();
    EXPECT_EQ(text,
              "Serviceable event #1042\n\n"
              "<b>fan~1</b> [x](https://evil.example) *lost*: see [address left out] # now @all, www.evil.example\n\n"
              "Status: Open, Pending approval\nSeverity: not known\nCall home: intended\n"
              "Reference code: X417-2208, extension 0000A3C1\nFirmware fix: Level 2.4.1\n"
              "First reported: 12 Mar 2026, 13:11 UTC+5:30 (07:41 UTC)\nLast reported: soon\n"
              "Reported: 3 more times\n\n"
              "System: helios-03, error\nType and model: 4210-M16\nSerial: 06A17C2\n\n"
              "Part 1: PS-1400-07\nLocation: drawer 1, supply 2\n\n"
              "Console: Harbour B, V3R2.4.0.SP1\nSerial: not known\n\n"
              "Read: 12 Mar 2026, 15:11 UTC+5:30 (09:41 UTC)\nMade by Lodestar\n");
    EXPECT_EQ(sheet->heading().toStdString() + "\n", text.substr(0, text.find('\n') + 1));
    EXPECT_EQ(sheet->paragraphs(Qt::black, true).size(), 6);
    EXPECT_TRUE(sheet->paragraphs(Qt::black, true).first().startsWith("&lt;b&gt;fan~1"));
    sheet->setLeavesOutAddresses(false);
    EXPECT_THAT(sheet->text().toStdString(),
                AllOf(HasSubstr("see 192.0.2.7 # now"), HasSubstr("\nAddress: fe80::61:1\n"),
                      HasSubstr("\nAddress: harbour-b.example\n"), Not(HasSubstr("oversight")),
                      Not(HasSubstr("secret"))));

    // Another reader sees the values as they are.
    sheet->setMarkdown(true);
    QTextDocument document;
    document.setMarkdown(sheet->text(), QTextDocument::MarkdownDialectGitHub);
    const std::string read = document.toPlainText().toStdString();
    EXPECT_THAT(read, AllOf(StartsWith("Serviceable event #1042\n<b>fan~1</b> [x](https://evil.example) *lost*: see"),
                            HasSubstr("# now @all, www.evil.example\n"), HasSubstr("Status: Open, Pending approval")));
    EXPECT_FALSE(document.toHtml().contains("href"));

    // What cannot be saved is not lost: another place may have room.
    FileSaver::answerWith([](const QString&) { return QStringLiteral("/sys/event-1042.md"); });
    sheet->save();
    EXPECT_EQ(WindowDialogs::shared().alert().title(), "Could not be saved: you may not write there.");
    WindowDialogs::shared().alert().dismiss();
    ASSERT_NE(detail->semiModal(), nullptr);

    const QString name = QString::fromStdString(saved.file("event-1042.md"));
    FileSaver::answerWith([&](const QString& suggested) { return suggested == "event-1042.md" ? name : QString(); });
    sheet->save();
    FileSaver::answerWith({});
    EXPECT_EQ(detail->semiModal(), nullptr) << "the sheet has done its work";
    QFile file(name);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_THAT(file.readAll().toStdString(), HasSubstr("**Reference code:** X417-2208, extension 0000A3C1"));
    EXPECT_EQ(Toasts::shared().text(), "Saved as event-1042.md");
}

TEST_F(ReportTest, ASystemsReportIsCopiedAsItIsShownAndOneOfNoConsoleSaysSo)
{
    corvel->setName("Dr. B at corvel-b.harbour.example 2.0");
    const auto detail = show<MSDetailViewController>("ManagedSystem");
    ServiceReportController* const sheet = openReport(*detail);
    const std::string text = sheet->text().toStdString();
    EXPECT_THAT(text,
                AllOf(StartsWith("System helios-03\n\nStatus: error\nReference code: X417\nAttention LED On: true\n\n"),
                      HasSubstr("\nConsole: Dr. B at [address left out] 2.0, V3R2"), Not(HasSubstr("fe80")),
                      HasSubstr("\nRead: 12 Mar 2026, 09:41 UTC\n")));
    sheet->copy();
    EXPECT_EQ(copied(), text);
    EXPECT_EQ(Toasts::shared().text(), "Copied System helios-03");

    const auto unknown =
        openDetail("<SystemName>helios.harbour.example</SystemName>", makeController<MSDetailViewController>());
    EXPECT_THAT(openReport(*unknown)->text().toStdString(),
                AllOf(StartsWith("System [address left out]\n"), HasSubstr("\nConsole: not known\n"),
                      HasSubstr("\nRead: not known\n")));
}

TEST_F(ReportTest, RowsAreCopiedWholeAlsoWhereTheyAreCut)
{
    const auto system = show<MSDetailViewController>("ManagedSystem");
    EXPECT_EQ(cellAt<DetailCell>(*system, 0).detailTextLabel, "fe80");
    system->copyValue(0, 0);
    EXPECT_EQ(copied(), "fe80::61:1");
    EXPECT_EQ(Toasts::shared().text(), "Copied fe80::61:1");

    const auto event = show<SEDetailViewController>("ServiceableEvent");
    const auto menu = [&](int row) {
        event->presentMenu(0, row);
        std::vector<std::string> titles;
        for (const QVariant& choice : event->rowMenu()->choices()) {
            titles.push_back(choice.value<MenuChoice>().title.toStdString());
        }
        return titles;
    };
    EXPECT_THAT(menu(15), ElementsAre("Copy Value", "Copy All", "Find on All Consoles", "Cancel"));
    EXPECT_EQ(event->rowMenu()->title(), "Event Text");
    event->rowMenu()->choose(0);
    EXPECT_EQ(copied(), hostileText);
    EXPECT_THAT(menu(16), ElementsAre("Copy All", "Cancel")) << "the event has no severity";
    event->rowMenu()->choose(0);
    EXPECT_THAT(copied(), AllOf(StartsWith("Problem Number: 1042\n"), EndsWith("\nReplacement Group: "),
                                HasSubstr("\nEvent Text: <b>fan~1</b>"), HasSubstr("see 192.0.2.7 # now")));
    EXPECT_EQ(Toasts::shared().text(), "Copied 28 rows");
    event->presentMenu(0, 99);
    EXPECT_FALSE(event->rowMenu()->isPresented());
}

} // namespace
} // namespace lodestar::testing
