// SPDX-License-Identifier: Apache-2.0
#include "Tests/Views/ListFixture.h"
#include "Views/Dashboard/CorvelOverviewTableViewController.h"
#include "Views/Dashboard/MSOverViewController.h"
#include "Views/ManagedSystems/MSDetailViewController.h"
#include "Views/ManagementConsole/MCViewController.h"

#include <QDesktopServices>

namespace lodestar::testing
{
namespace
{

class BrowserStub : public QObject
{
    Q_OBJECT
public:
    std::vector<QUrl> opened;
    Q_SLOT void open(const QUrl& url) { opened.push_back(url); }
};

class ConsoleScreensTest : public ListTest
{
protected:
    std::shared_ptr<MSDetailViewController> show(const std::string& xml,
                                                 const char* base = "https://docs.example/reference-codes?code=")
    {
        return openDetail(xml, makeController<MSDetailViewController>(QString(base)));
    }
};

TEST_F(ConsoleScreensTest, ASystemShowsItsFactsInFourSections)
{
    const auto detail = show("<SystemName>helios-03</SystemName><PrimaryIPAddress>fe80::1</PrimaryIPAddress>"
                             "<State>error</State><MachineTypeModelAndSerialNumber><SerialNumber>06A</SerialNumber>"
                             "<Model>M16</Model></MachineTypeModelAndSerialNumber>"
                             "<AssociatedSystemMemoryConfiguration><ConfigurableSystemMemory>262144"
                             "</ConfigurableSystemMemory></AssociatedSystemMemoryConfiguration>");
    EXPECT_EQ(detail->title(), "helios-03");
    EXPECT_THAT(detail->tableData(), ElementsAre(QStringList({"IP Address:fe80::1", "Status:error",
                                                              "Reference Code:(null)", "Attention LED On:(null)"}),
                                                 QStringList({"Serial Number:06A", "Machine Type:(null)", "Model:M16"}),
                                                 QStringList({"Available Processing Units:(null)"}),
                                                 QStringList({"Available Memory:262144 MB"})));
    EXPECT_EQ(cellAt<DetailCell>(*detail, 0, TableKind::Main, 0).detailTextLabel, "fe80");
    EXPECT_EQ(detail->titleForHeaderInSection(TableKind::Main, 1), "Model & Serial Information");
    EXPECT_EQ(detail->titleForHeaderInSection(TableKind::Main, 4), "");
    const auto fetching = [](const char* start, const char* what) {
        return std::string(start) + " populateSystemDetails: DeltaCorvelViewController: Fetching " + what;
    };
    EXPECT_THAT(log("Shared/Views/ManagedSystems/MSDetailViewController"),
                ElementsAre("23 viewDidLoad: MSDetailViewController instantiation", fetching("47", "Main Items"),
                            fetching("58", "MTSM"), fetching("69", "Processor Information"),
                            fetching("78", "Memory Information")));
}

TEST_F(ConsoleScreensTest, OnlyAReferenceCodeLeadsOnToItsDocumentation)
{
    BrowserStub browser;
    QDesktopServices::setUrlHandler("https", &browser, "open");
    const auto linked = show("<ReferenceCode>X4 17&amp;a/ü</ReferenceCode>");
    watch(linked->tableView());
    // A program that was built without the documentation's address has no link, nor has a system without a code.
    for (const auto& detail : {linked, show("<ReferenceCode>X417</ReferenceCode>", ""), show("")}) {
        EXPECT_EQ(cellAt<DetailCell>(*detail, 2, TableKind::Main, 0).disclosure, detail == linked);
        for (int flat = 0; flat < detail->tableView()->count(); ++flat) {
            detail->tableView()->select(flat);
        }
    }
    EXPECT_FALSE(cellAt<DetailCell>(*linked, 1, TableKind::Main, 0).disclosure ||
                 cellAt<DetailCell>(*linked, 2, TableKind::Main, 1).disclosure);
    ASSERT_EQ(browser.opened.size(), 1U);
    EXPECT_EQ(browser.opened[0].toEncoded(), "https://docs.example/reference-codes?code=X4%2017%26a%2F%C3%BC");
    EXPECT_EQ(deselected.size(), 9U);
    QDesktopServices::unsetUrlHandler("https");
}

TEST_F(ConsoleScreensTest, ConsoleInformationComesFromTheFeedOrSaysThatThereIsNone)
{
    const std::string entries = entry(
        "ManagementConsole",
        "<ManagementConsoleName>corvel-a</ManagementConsoleName><VersionInfo><Version>3</Version><Release>2</Release>"
        "<Minor>0</Minor><ServicePackName>SP1</ServicePackName><BuildLevel>20260118.2</BuildLevel></VersionInfo>");
    const std::string source = "Shared/Views/ManagementConsole/MCViewController";
    const auto fetching = [](const char* start, const char* what) {
        return std::string(start) + " populateTableViewFromXML:: MCViewController: Fetching " + what;
    };
    const auto shown = open<MCViewController>(addFetched("ManagementConsole", entries));
    EXPECT_EQ(header(*shown), "Management Console/3 Jul 2026, 10:25");
    EXPECT_EQ(cellAt<DetailCell>(*shown, 0, TableKind::Main, 0).detailTextLabel, "corvel-a");
    EXPECT_EQ(cellAt<DetailCell>(*shown, 0, TableKind::Main, 1).detailTextLabel, "(null)");
    // Maintenance stands before the minor release, and is missing.
    EXPECT_EQ(cellAt<DetailCell>(*shown, 0, TableKind::Main, 2), (DetailCell{"Version", "V3R2.(null).0.SP1", false}));
    EXPECT_EQ(cellAt<DetailCell>(*shown, 1, TableKind::Main, 2), (DetailCell{"Build Level", "20260118.2", false}));
    EXPECT_EQ(shown->titleForHeaderInSection(TableKind::Main, 2), "Version Information");
    EXPECT_THAT(log(source), ElementsAre("26 viewDidLoad: MCViewController instantiation", fetching("135", "data"),
                                         fetching("138", "Main items"), fetching("144", "MTSM"),
                                         fetching("156", "processor information")));

    const auto alone = open<MCViewController>(nullptr);
    EXPECT_EQ(header(*alone), "Console Data/N/A");
    alone->rightBarButton()->tap();
    EXPECT_EQ(seen(*alone), "fetchingActivityIndicator");
    ASSERT_TRUE(runUntil([&] { return !alone->contentLabel()->isHidden(); }));
    EXPECT_EQ(seen(*alone), "contentLabel");
    EXPECT_TRUE(alone->rightBarButton()->isEnabled());
    EXPECT_EQ(header(*alone), "Management Console/");
    EXPECT_THAT(log(source).back(),
                AllOf(StartsWith("121 fetchSystemInformation: Error: "), EndsWith(" - > fetchSystemInformation")));

    demoFeeds["ManagementConsole"] = "<feed>" + entries + "</feed>";
    const CorvelRef lacking = addFetched("ManagementConsole", "");
    setFeedOfType(*lacking, ObjectType::ManagementConsole, Feed::notAvailable());
    const auto failed = open<MCViewController>(lacking);
    EXPECT_EQ(header(*failed), "Console Data/N/A");
    EXPECT_EQ(seen(*failed), "");
    failed->rightBarButton()->tap();
    const auto fetched = open<MCViewController>(addCorvel("Demo", "127.0.0.1", true));
    for (const auto& screen : {failed, fetched}) {
        EXPECT_EQ(header(*screen), "Management Console/updating...");
        EXPECT_EQ(seen(*screen), "fetchingActivityIndicator");
    }
    for (const auto& screen : {failed, fetched}) {
        ASSERT_TRUE(runUntil([&] { return !screen->tableView()->isHidden(); }));
        EXPECT_EQ(seen(*screen), "tableView");
        EXPECT_FALSE(screen->rightBarButton()->isEnabled());
        EXPECT_EQ(cellAt<DetailCell>(*screen, 0, TableKind::Main, 0).detailTextLabel, "corvel-a");
    }
}

TEST_F(ConsoleScreensTest, TheOverviewCountsAndLeadsOn)
{
    const CorvelRef corvel = addFetched("ManagedSystem", "<entry/><entry/>");
    setFeedOfType(*corvel, ObjectType::Group, Feed::notAvailable());
    registerScenes(Scenes::managedSystemsView, Scenes::viosView, Scenes::logicalPartitionsView,
                   Scenes::resourceGroupsView, Scenes::serviceableEventsView, Scenes::managementConsoleView);
    const auto overview = open<CorvelOverviewTableViewController>(corvel);
    EXPECT_EQ(overview->title(), "Harbour A");
    EXPECT_TRUE(overview->backTitle().isEmpty() && !overview->backTitle().isNull());
    const auto detail = [&](int section, int row) {
        return overview->cellForRowAtIndexPath(TableKind::Main, {section, row}).value<MenuCell>().detail;
    };
    EXPECT_EQ(detail(0, 0), "2");
    EXPECT_EQ(detail(0, 3), "not loaded");
    EXPECT_EQ(detail(2, 0), "");

    std::vector<std::string> scenes;
    watch(overview->tableView());
    for (int flat = 0; flat < overview->tableView()->count(); ++flat) {
        overview->tableView()->select(flat);
        if (navigation->depth() == 3) {
            const auto* const partitions = std::any_cast<PartitionsInput>(&openedWith);
            EXPECT_EQ(partitions != nullptr ? partitions->corvel : input<CorvelRef>(), corvel);
            EXPECT_FALSE(partitions != nullptr && partitions->partitionName);
            scenes.push_back(openedScene);
            goBack();
        }
    }
    EXPECT_THAT(scenes, ElementsAre("managedSystemsView", "viosView", "logicalPartitionsView", "resourceGroupsView",
                                    "serviceableEventsView", "managementConsoleView"));
    EXPECT_EQ(deselected.size(), 6U);
    // A fetch of another screen shows when this one comes back.
    setFeedOfType(*corvel, ObjectType::Group, Feed(parse("<feed><entry/></feed>")));
    overview->didSelectRowAtIndexPath(TableKind::Main, {2, 0});
    goBack();
    EXPECT_EQ(detail(0, 3), "1");
}

TEST_F(ConsoleScreensTest, TheSystemMenuChartsTheFirstSystemAndListsThePartitionsOfItsOwn)
{
    registerScenes(Scenes::pcmDataView, Scenes::logicalPartitionsView);
    const auto menu = makeController<MSOverViewController>();
    menu->setCorvel(addFetched("ManagedSystem", system("first", "operating", "false",
                                                       "<Metadata><Atom><AtomID>id-1</AtomID></Atom></Metadata>") +
                                                    system("second", "standby")));
    menu->setSystem(parse("<s><SystemName>second</SystemName></s>"));
    push(menu);
    menu->didSelectRowAtIndexPath(TableKind::Main, {0, 0});
    EXPECT_EQ(openedScene, "pcmDataView");
    EXPECT_EQ(input<PerformanceInput>().corvel, menu->corvel());
    EXPECT_EQ(input<PerformanceInput>().systemID, "id-1");
    EXPECT_EQ(input<PerformanceInput>().sysName, std::nullopt);
    goBack();
    menu->didSelectRowAtIndexPath(TableKind::Main, {1, 0});
    EXPECT_EQ(navigation->depth(), 2);
    menu->didSelectRowAtIndexPath(TableKind::Main, {1, 1});
    EXPECT_EQ(input<PartitionsInput>().partitionName, "second");
}

} // namespace
} // namespace lodestar::testing

#include "ConsoleScreensTest.moc"
