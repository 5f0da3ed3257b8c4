// SPDX-License-Identifier: Apache-2.0
#include "Controllers/REST/RESTHandler.h"
#include "Fleet/History.h"
#include "Kit/Core/NavigationController.h"
#include "Tests/Scenes/SceneTest.h"
#include "Tests/Support/ScratchFolder.h"
#include "Views/Attention/AttentionViewController.h"
#include "Views/Common/AgeClock.h"

#include <fmt/format.h>

namespace lodestar::scenes
{
namespace
{

using namespace std::chrono;

class ChangesSceneTest : public SceneTest
{
protected:
    ChangesSceneTest()
    {
        AgeClock::setNow(now);
        History::shared().open(m_documents.path());
        stage.show({390, 844}, fleet());
        attention = showAttention(stage.tabs());
    }
    ~ChangesSceneTest() override
    {
        History::shared().forgetAll();
        History::shared().close();
        Attention::shared().adopt(nullptr);
        AgeClock::setNow(std::nullopt);
    }

    void choose(AttentionViewController::Segment segment)
    {
        attention->segmentedControl()->setSelectedSegmentIndex(static_cast<int>(segment));
    }
    /// A reading of twelve partitions, the state of each with its number in place of the braces.
    void read(WallTime ended, const char* state) const
    {
        std::string feed = "<feed>";
        for (int i = 1; i <= 12; ++i) {
            feed +=
                fmt::format("<entry><content><LogicalPartition><PartitionName>lp-{0}</PartitionName><PartitionState>"
                            "{1}</PartitionState></LogicalPartition></content></entry>",
                            i, fmt::format(fmt::runtime(state), i));
        }
        auto reading = std::make_shared<Reading>();
        reading->outcome = Reading::Outcome::Complete;
        reading->ended = ended;
        auto feeds = std::make_shared<FeedDictionary>();
        for (std::size_t i = 0; i < feedTable.size(); ++i) {
            reading->feeds[i].type = feedTable[i].type;
            const bool partitions = feedTable[i].type == ObjectType::LogicalPartition;
            feeds->setFeed(feedTable[i].type,
                           Feed(XMLElement::parse(partitions ? feed + "</feed>" : "<feed/>").value()));
        }
        History::shared().add(RESTHandler::sharedInstance().corvelList().front(), reading, feeds);
    }
    bool isAtTop(const char* heading) const
    {
        return stage.waitFor([&] {
            const QQuickItem* const words = text(heading);
            return words != nullptr && std::abs(words->mapToScene({}).y() - 130) < 30;
        });
    }

    const WallTime now = sys_days(2026y / March / 12) + hours(12);
    const ScratchFolder m_documents;
    AttentionViewController* attention = nullptr;
};

TEST_F(ChangesSceneTest, ABarLeadsToItsDayByFingerAndByKeys)
{
    read(now - hours(50), "idle {}");
    read(now - hours(24), "error");
    read(now, "idle {}");
    choose(AttentionViewController::Segment::Changes);
    ASSERT_TRUE(waitForText("Today"));
    QQuickItem* const bars = stage.items("DayBars").front();
    EXPECT_EQ(spokenAs(bars), "30 days, today 0 worse, 12 better");
    const double start = bars->property("start").toDouble();
    const auto tapDay = [&](int day) {
        const QPointF middle(start + (day + 0.5) * (bars->width() - start) / 30, bars->height() / 2);
        QTest::mouseClick(&stage.window(), Qt::LeftButton, {}, bars->mapToScene(middle).toPoint());
    };
    tapDay(5); // a day without changes
    stage.settle(60);
    EXPECT_GT(text("Today")->mapToScene({}).y(), 200) << "it stays below the bars";
    tapDay(28);
    EXPECT_TRUE(isAtTop("Yesterday"));
    bars->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Left);
    press(Qt::Key_Right);
    press(Qt::Key_Return);
    EXPECT_TRUE(isAtTop("Today"));

    FindingFilter filter;
    filter.kinds = {FindingSubject::System};
    attention->setFilter(filter);
    ASSERT_TRUE(stage.waitFor([this] { return text("Today") == nullptr; }));
    click(button("Show all"));
    EXPECT_TRUE(waitForText("Today")) << "a filter that leaves nothing offers the way out";
    filter.kinds = {FindingSubject::Partition};
    attention->setFilter(filter);
    ASSERT_TRUE(waitForText("Partitions"));
    click(button("Show all"));
    EXPECT_TRUE(stage.waitFor([this] { return button("Show all") == nullptr; }));
}

TEST_F(ChangesSceneTest, EventsAreOrderedInASheetAndSearchedInPlaceOfTheBar)
{
    auto picture = std::make_shared<Attention::Picture>();
    const CorvelRef corvel = RESTHandler::sharedInstance().corvelList().front();
    auto reading = std::make_shared<Reading>();
    reading->outcome = Reading::Outcome::Complete;
    auto feeds = std::make_shared<FeedDictionary>();
    std::string feed = "<feed>";
    for (const int number : {1041, 1042, 1029}) {
        feed +=
            fmt::format("<entry><content><ServiceableEvent><problemNumber>{0}</problemNumber><ApprovalState>Approved"
                        "</ApprovalState><problemState>Open</problemState><lastReportedTimestamp>{0}"
                        "</lastReportedTimestamp></ServiceableEvent></content></entry>",
                        number);
    }
    feeds->setFeed(ObjectType::ServiceableEvent, Feed(XMLElement::parse(feed + "</feed>").value()));
    picture->consoles.push_back({corvel, "Harbour A", "a", reading, feeds, nullptr});
    Attention::shared().adopt(picture);
    choose(AttentionViewController::Segment::Events);
    ASSERT_TRUE(waitForText("Approved (#1042)"));
    EXPECT_GT(text("Approved (#1041)")->mapToScene({}).y(), text("Approved (#1042)")->mapToScene({}).y());

    click(button("Order"));
    ASSERT_TRUE(waitForButton("Done"));
    stage.settle(400);
    click(button("As the console sends them"));
    press(Qt::Key_Escape);
    ASSERT_TRUE(stage.waitFor([this] { return button("Done") == nullptr; }));
    ASSERT_TRUE(waitForText("As the console sends them: 3 of 3")) << "Escape keeps what was chosen";
    EXPECT_LT(text("Approved (#1041)")->mapToScene({}).y(), text("Approved (#1042)")->mapToScene({}).y());
    click(button("Reset"));
    EXPECT_TRUE(stage.waitFor([this] { return button("Reset") == nullptr; }));

    click(button("Search"));
    ASSERT_TRUE(waitForButton("Cancel"));
    type("#104");
    EXPECT_TRUE(stage.waitFor([this] { return text("Approved (#1029)") == nullptr; }));
    EXPECT_TRUE(waitForText("Approved (#1041)"));
    const NavigationController& stack = *attention->navigationController();
    click(text("Approved (#1041)"));
    ASSERT_TRUE(stage.waitFor([&] { return stack.topViewController() != attention; }));
    stack.topViewController()->goBack();
    const auto field = [this] { return stage.items("FleetEventsSearch"); };
    ASSERT_TRUE(stage.waitFor([&] { return !field().empty() && waitForText("Approved (#1042)"); }));
    EXPECT_EQ(field().front()->property("text"), "#104") << "a search goes on after a look at an event";
    press(Qt::Key_Escape);
    EXPECT_TRUE(waitForText("Approved (#1029)"));
    EXPECT_TRUE(waitForButton("Order"));
}

} // namespace
} // namespace lodestar::scenes
