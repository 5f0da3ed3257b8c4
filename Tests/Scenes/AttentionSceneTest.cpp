// SPDX-License-Identifier: Apache-2.0
#include "Controllers/REST/RESTHandler.h"
#include "Kit/Core/Toasts.h"
#include "Tests/Scenes/SceneTest.h"
#include "Views/Attention/AttentionViewController.h"
#include "Views/Attention/FoldedListController.h"

namespace lodestar::scenes
{
namespace
{

class AttentionSceneTest : public SceneTest
{
protected:
    AttentionSceneTest()
    {
        stage.show({390, 844}, fleet());
        attention = showAttention(stage.tabs());
    }
    ~AttentionSceneTest() override
    {
        Toasts::shared().dismiss();
        Attention::shared().adopt(std::make_shared<Attention::Picture>());
    }

    void add(FindingRank rank, FindingSubject subject, std::string_view type, const std::string& name)
    {
        Finding& finding = picture.findings.list.emplace_back();
        finding.rank = rank;
        finding.subject = subject;
        finding.corvel = RESTHandler::sharedInstance().corvelList().front();
        finding.console = "Harbour A";
        finding.name = name;
        finding.object = {std::string(type), name};
        finding.element = XMLElement::parse("<x><SystemName>" + name + "</SystemName></x>").value();
        finding.since = Since{now, true};
        finding.ranUntil = now;
        finding.state = "error";
        ++picture.findings.needAttention;
    }
    void addSystem(const std::string& name)
    {
        add(FindingRank::SystemError, FindingSubject::System, ObjectType::ManagedSystem, name);
    }
    void show()
    {
        picture.fleet.consoles = picture.fleet.answeredInFull = RESTHandler::sharedInstance().corvelList().size();
        picture.fleet.from = now;
        Attention::shared().adopt(std::make_shared<Attention::Picture>(picture));
        stage.settle(60);
    }
    QQuickItem* rowOf(const QString& name) const
    {
        QQuickItem* item = text(name);
        while (item != nullptr && !QByteArray(item->metaObject()->className()).startsWith("TableRow")) {
            item = item->parentItem();
        }
        return item;
    }
    ViewController* shown() const { return attention->navigationController()->topViewController(); }
    bool isBack() const
    {
        return stage.waitFor([this] { return shown() == attention && text("Attention") != nullptr; });
    }

    const WallTime now = std::chrono::system_clock::now();
    Attention::Picture picture;
    AttentionViewController* attention = nullptr;
};

TEST_F(AttentionSceneTest, RowsAreWorkedByFingerAndKeysAndComeAndGoAroundTheOneThatIsHeld)
{
    Appearance::shared().overrideReducedMotion(false);
    addSystem("helios-01");
    addSystem("helios-02");
    add(FindingRank::Stopped, FindingSubject::Partition, ObjectType::LogicalPartition, "batch-1");
    show();
    ASSERT_TRUE(waitForText("helios-02"));
    QQuickItem* const second = rowOf("helios-02");
    EXPECT_EQ(second->height(), 60);

    // The row stays the same item while rows come and go beside it, and nothing moves under a finger.
    QTest::mousePress(&stage.window(), Qt::LeftButton, {}, centerOf(second));
    picture.findings.list.erase(picture.findings.list.begin());
    show();
    stage.settle(400);
    EXPECT_NE(text("helios-01"), nullptr);
    QTest::mouseRelease(&stage.window(), Qt::LeftButton, {}, centerOf(second));
    ASSERT_TRUE(stage.waitFor([this] { return shown() != attention; }));
    EXPECT_EQ(shown()->title(), "helios-02") << "the press is the held row's, though rows went meanwhile";
    shown()->goBack();
    ASSERT_TRUE(isBack());
    ASSERT_TRUE(stage.waitFor([this] { return text("helios-01") == nullptr; }));
    EXPECT_EQ(rowOf("helios-02"), second);
    addSystem("helios-07");
    std::swap(picture.findings.list[1], picture.findings.list[2]);
    show();
    ASSERT_TRUE(waitForText("helios-07"));
    stage.settle(400);
    EXPECT_EQ(rowOf("helios-02"), second);
    EXPECT_EQ(second->opacity(), 1);
    EXPECT_EQ(rowOf("helios-07")->opacity(), 1);
    EXPECT_EQ(rowOf("helios-07")->y(), second->y() + second->height());
    EXPECT_GT(rowOf("batch-1")->y(), rowOf("helios-07")->y() + 60);

    press(Qt::Key_End);
    press(Qt::Key_F10, Qt::ShiftModifier);
    ASSERT_TRUE(waitForButton("Expected"));
    picture.findings.list.clear();
    show();
    EXPECT_NE(text("batch-1"), nullptr) << "an open swipe holds its row";
    press(Qt::Key_Return);
    EXPECT_TRUE(waitForText("Marked as expected until it runs again"));
    EXPECT_TRUE(waitForText("Nothing needs attention"));
    EXPECT_TRUE(stage.waitFor([this] { return stage.items("TableRow").empty(); }));
}

TEST_F(AttentionSceneTest, TheSheetIsWorkedByKeysAndSegmentsAndTabsSayWhatTheyAre)
{
    for (int number = 0; number < 6; ++number) {
        add(FindingRank::PartitionError, FindingSubject::Partition, ObjectType::LogicalPartition,
            "part-" + std::to_string(number));
    }
    addSystem("helios-01");
    show();
    const std::vector<QQuickItem*> tabs = stage.items("TabBar");
    ASSERT_EQ(tabs.size(), 1U);
    EXPECT_NE(text("7"), nullptr);
    EXPECT_EQ(spokenAs(button("Attention")), "Attention, 7 things");

    click(button("Show"));
    ASSERT_TRUE(waitForButton("Done"));
    stage.settle(400);
    QQuickItem* const chip = button("Systems");
    ASSERT_NE(chip, nullptr);
    chip->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Space);
    EXPECT_TRUE(attention->isFiltered());
    EXPECT_EQ(button("Systems"), chip) << "the focus would be lost";
    EXPECT_TRUE(chip->property("on").toBool());
    click(button("Harbour B"));
    EXPECT_EQ(attention->filter().consoles.size(), 1U);
    press(Qt::Key_Escape);
    ASSERT_TRUE(stage.waitFor([this] { return button("Done") == nullptr; }));
    EXPECT_TRUE(attention->isFiltered()) << "Escape keeps what was chosen";
    EXPECT_TRUE(waitForText("7 more things are not shown."));
    click(button("Show all"));
    ASSERT_TRUE(waitForText("6 partitions"));
    click(rowOf("6 partitions"));
    ASSERT_TRUE(stage.waitFor([this] { return qobject_cast<FoldedListController*>(shown()) != nullptr; }));
    EXPECT_TRUE(waitForText("part-5"));
    press(Qt::Key_Escape);
    shown()->goBack();
    ASSERT_TRUE(isBack());
    stage.settle(400); // screens that slide take no press
    for (const char* const segment : {"Changes", "Events", "Now"}) {
        click(button(segment));
        stage.settle(60);
    }
    EXPECT_EQ(attention->segmentedControl()->selectedSegmentIndex(), 0);
    EXPECT_TRUE(waitForText("6 partitions"));
    // What a segment shows leaves the keyboard with the segment.
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    EXPECT_EQ(attention->segmentedControl()->selectedSegmentIndex(), 2);
    EXPECT_TRUE(button("Events")->hasActiveFocus());
}

} // namespace
} // namespace lodestar::scenes
