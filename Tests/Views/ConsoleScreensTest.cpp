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

using ::testing::ElementsAre;

constexpr auto detailFile = "Shared/Views/ManagedSystems/MSDetailViewController";
constexpr auto consoleFile = "Shared/Views/ManagementConsole/MCViewController";

class BrowserStub : public QObject
{
    Q_OBJECT
public:
    std::vector<QUrl> opened;
    Q_SLOT void open(const QUrl& url) { opened.push_back(url); }
};

class SystemDetailTest : public ListTest
{
protected:
    std::shared_ptr<MSDetailViewController> show(const std::string& xml,
                                                 const char* base = "https://docs.example/reference-codes?code=")
    {
        const auto detail = makeController<MSDetailViewController>(QString::fromLatin1(base));
        detail->setRootXML(parse(xml));
        return push(detail);
    }
    static DetailCell cell(DetailViewController& detail, int section, int row)
    {
        return detail.cellForRowAtIndexPath(TableKind::Main, {section, row}).value<DetailCell>();
    }
};

TEST_F(SystemDetailTest, ShowsTheFactsInFourSections)
{
    const auto detail = show("<s><SystemName>helios-03</SystemName><PrimaryIPAddress>fe80::1</PrimaryIPAddress>"
                             "<State>error</State><MachineTypeModelAndSerialNumber><SerialNumber>06A</SerialNumber>"
                             "<Model>M16</Model></MachineTypeModelAndSerialNumber>"
                             "<AssociatedSystemMemoryConfiguration><ConfigurableSystemMemory>262144"
                             "</ConfigurableSystemMemory></AssociatedSystemMemoryConfiguration></s>");
    EXPECT_EQ(detail->title(), "helios-03");
    std::vector<QStringList> data;
    for (const DetailSection& section : detail->tableData()) {
        data.push_back(section.data);
    }
    EXPECT_THAT(data, ElementsAre(QStringList({"IP Address:fe80::1", "Status:error", "Reference Code:(null)",
                                               "Attention LED On:(null)"}),
                                  QStringList({"Serial Number:06A", "Machine Type:(null)", "Model:M16"}),
                                  QStringList({"Available Processing Units:(null)"}),
                                  QStringList({"Available Memory:262144 MB"})));
    EXPECT_EQ(cell(*detail, 0, 0).detailTextLabel, "fe80");
    EXPECT_EQ(detail->titleForHeaderInSection(TableKind::Main, 1), "Model & Serial Information");
    EXPECT_EQ(detail->titleForHeaderInSection(TableKind::Main, 4), "");
    const std::vector<LoggedLine> log = lines(detailFile);
    EXPECT_THAT(lineNumbers(log), ElementsAre(23, 47, 58, 69, 78));
    EXPECT_EQ(log[4].message, "DeltaCorvelViewController: Fetching Memory Information");
    EXPECT_EQ(log[4].method, "-[MSDetailViewController populateSystemDetails]");
}

TEST_F(SystemDetailTest, OnlyAReferenceCodeLeadsOnToItsDocumentation)
{
    BrowserStub browser;
    QDesktopServices::setUrlHandler("https", &browser, "open");
    const auto detail = show("<s><ReferenceCode>X4 17&amp;a/ü</ReferenceCode></s>");
    std::vector<int> deselected;
    QObject::connect(detail->tableView(), &TableOutlet::deselected, [&](int row) { deselected.push_back(row); });
    EXPECT_TRUE(cell(*detail, 0, 2).disclosure);
    EXPECT_FALSE(cell(*detail, 0, 1).disclosure || cell(*detail, 1, 2).disclosure);
    for (int flat = 0; flat < detail->tableView()->count(); ++flat) {
        detail->tableView()->select(flat);
    }
    ASSERT_EQ(browser.opened.size(), 1U);
    EXPECT_EQ(browser.opened[0].toString(QUrl::FullyEncoded),
              "https://docs.example/reference-codes?code=X4%2017%26a%2F%C3%BC");
    EXPECT_EQ(deselected.size(), 9U);
    // A program that was built without the documentation's address has no link.
    const auto unlinked = show("<s><ReferenceCode>X417</ReferenceCode></s>", "");
    EXPECT_FALSE(cell(*unlinked, 0, 2).disclosure);
    unlinked->didSelectRowAtIndexPath(TableKind::Main, {0, 2});
    EXPECT_EQ(browser.opened.size(), 1U);

    const auto none = show("<s><SystemName>alpha</SystemName></s>");
    EXPECT_FALSE(cell(*none, 0, 2).disclosure);
    none->didSelectRowAtIndexPath(TableKind::Main, {0, 2});
    EXPECT_EQ(browser.opened.size(), 1U);
    QDesktopServices::unsetUrlHandler("https");
}

class ConsoleScreensTest : public SystemDetailTest
{
};

TEST_F(ConsoleScreensTest, ConsoleInformationComesFromTheFeedOrSaysThatThereIsNone)
{
    const std::string xml =
        "<feed><entry><published>2026-07-03T10:25:00.000Z</published><content><ManagementConsole>"
        "<ManagementConsoleName>corvel-a</ManagementConsoleName><VersionInfo><Version>3</Version><Release>2</Release>"
        "<Minor>0</Minor><ServicePackName>SP1</ServicePackName><BuildLevel>20260118.2</BuildLevel></VersionInfo>"
        "</ManagementConsole></content></entry></feed>";
    const auto shown = open<MCViewController>(addFetched({{"ManagementConsole", Feed(parse(xml))}}));
    EXPECT_EQ(shown->header()->titleLabel()->text(), "Management Console");
    EXPECT_EQ(shown->header()->subtitleLabel()->text(), "3 Jul 2026, 10:25");
    EXPECT_EQ(cell(*shown, 0, 0).detailTextLabel, "corvel-a");
    EXPECT_EQ(cell(*shown, 1, 0).detailTextLabel, "(null)");
    // Maintenance stands before the minor release, and is missing.
    EXPECT_EQ(cell(*shown, 2, 0), (DetailCell{"Version", "V3R2.(null).0.SP1", false}));
    EXPECT_EQ(cell(*shown, 2, 1), (DetailCell{"Build Level", "20260118.2", false}));
    EXPECT_EQ(shown->titleForHeaderInSection(TableKind::Main, 2), "Version Information");
    EXPECT_FALSE(shown->tableView()->isHidden());
    EXPECT_THAT(lineNumbers(lines(consoleFile)), ElementsAre(26, 135, 138, 144, 156));

    const auto failed = open<MCViewController>(addFetched({{"ManagementConsole", Feed::notAvailable()}}));
    EXPECT_EQ(failed->header()->titleLabel()->text(), "Console Data");
    EXPECT_EQ(failed->header()->subtitleLabel()->text(), "N/A");
    EXPECT_TRUE(failed->tableView()->isHidden() && failed->contentLabel()->isHidden());

    const auto alone = open<MCViewController>(nullptr);
    alone->fetchSystemInformation();
    EXPECT_EQ(alone->header()->subtitleLabel()->text(), "N/A");
    alone->rightBarButton()->tap();
    EXPECT_TRUE(alone->fetchingActivityIndicator()->isAnimating());
    EXPECT_FALSE(alone->rightBarButton()->isEnabled());
    ASSERT_TRUE(runUntil([&] { return !alone->contentLabel()->isHidden(); }));
    EXPECT_TRUE(alone->rightBarButton()->isEnabled());

    demoFeeds()["ManagementConsole"] = xml;
    failed->rightBarButton()->tap();
    EXPECT_EQ(failed->header()->subtitleLabel()->text(), "updating...");
    ASSERT_TRUE(runUntil([&] { return !failed->tableView()->isHidden(); }));
    EXPECT_EQ(failed->rightBarButton()->systemItem(), BarButtonOutlet::SystemItem::None);
    const auto fetched = open<MCViewController>(addCorvel("Demo", "127.0.0.1", true));
    EXPECT_EQ(fetched->header()->subtitleLabel()->text(), "updating...");
    EXPECT_TRUE(fetched->fetchingActivityIndicator()->isAnimating());
    ASSERT_TRUE(runUntil([&] { return !fetched->tableView()->isHidden(); }));
    EXPECT_FALSE(fetched->fetchingActivityIndicator()->isAnimating());
    EXPECT_EQ(cell(*fetched, 0, 0).detailTextLabel, "corvel-a");
}

TEST_F(ConsoleScreensTest, TheOverviewCountsAndLeadsOn)
{
    const CorvelRef corvel =
        addFetched({{"ManagedSystem", Feed(parse("<feed><entry/><entry/></feed>"))}, {"Group", Feed::notAvailable()}});
    registerScenes(Scenes::managedSystemsView, Scenes::viosView, Scenes::logicalPartitionsView,
                   Scenes::resourceGroupsView, Scenes::serviceableEventsView, Scenes::managementConsoleView);
    const auto overview = open<CorvelOverviewTableViewController>(corvel);
    EXPECT_EQ(overview->title(), "Harbour A");
    EXPECT_TRUE(overview->backTitle().isEmpty() && !overview->backTitle().isNull());
    const auto menuCell = [&](int section, int row) {
        return overview->cellForRowAtIndexPath(TableKind::Main, {section, row}).value<MenuCell>();
    };
    EXPECT_EQ(menuCell(0, 0).detail, "2");
    EXPECT_EQ(menuCell(0, 3).detail, "not loaded");
    EXPECT_EQ(menuCell(2, 0).detail, "");

    std::vector<std::string> scenes;
    int deselected = 0;
    QObject::connect(overview->tableView(), &TableOutlet::deselected, [&] { ++deselected; });
    for (int flat = 0; flat < overview->tableView()->count(); ++flat) {
        overview->tableView()->select(flat);
        if (navigation->depth() == 3) {
            if (openedScene == Scenes::logicalPartitionsView.identifier) {
                EXPECT_EQ(input<PartitionsInput>().corvel, corvel);
                EXPECT_EQ(input<PartitionsInput>().partitionName, std::nullopt);
            } else {
                EXPECT_EQ(input<CorvelRef>(), corvel);
            }
            scenes.push_back(openedScene);
            goBack();
        }
    }
    EXPECT_THAT(scenes, ElementsAre("managedSystemsView", "viosView", "logicalPartitionsView", "resourceGroupsView",
                                    "serviceableEventsView", "managementConsoleView"));
    EXPECT_EQ(deselected, 6);
    // A fetch of another screen shows when this one comes back.
    setFeedOfType(*corvel, ObjectType::Group, Feed(parse("<feed><entry/></feed>")));
    overview->didSelectRowAtIndexPath(TableKind::Main, {2, 0});
    goBack();
    EXPECT_EQ(menuCell(0, 3).detail, "1");
}

TEST_F(ConsoleScreensTest, TheSystemMenuChartsTheFirstSystemAndOpensItsOwn)
{
    const CorvelRef corvel = addFetched(
        {{"ManagedSystem",
          Feed(parse("<feed>" +
                     system("first", "operating", "false", "<Metadata><Atom><AtomID>id-1</AtomID></Atom></Metadata>") +
                     system("second", "standby") + "</feed>"))}});
    registerScenes(Scenes::pcmDataView, Scenes::logicalPartitionsView, Scenes::managedSystemInfo);
    const auto menu = makeController<MSOverViewController>();
    menu->setCorvel(corvel);
    menu->setSystem(parse("<s><SystemName>second</SystemName></s>"));
    push(menu);
    EXPECT_EQ(menu->title(), "Managed System");
    ASSERT_EQ(menu->gauges().size(), 2);
    EXPECT_EQ(menu->gauges()[1], (GaugeFigure{QRectF(85, 28, 110, 110), 100, 60, false, QColor(77, 186, 122)}));

    menu->didSelectRowAtIndexPath(TableKind::Main, {0, 0});
    EXPECT_EQ(openedScene, "pcmDataView");
    EXPECT_EQ(input<PerformanceInput>().corvel, corvel);
    EXPECT_EQ(input<PerformanceInput>().systemID, "id-1");
    EXPECT_EQ(input<PerformanceInput>().sysName, std::nullopt);
    goBack();
    menu->didSelectRowAtIndexPath(TableKind::Main, {1, 0});
    EXPECT_EQ(navigation->depth(), 2);
    menu->didSelectRowAtIndexPath(TableKind::Main, {1, 1});
    EXPECT_EQ(input<PartitionsInput>().partitionName, "second");
    goBack();
    menu->didSelectRowAtIndexPath(TableKind::Main, {2, 0});
    EXPECT_EQ(openedScene, "managedSystemInfo");
    EXPECT_EQ(input<XMLElement>(), menu->system());
}

} // namespace
} // namespace lodestar::testing

#include "ConsoleScreensTest.moc"
