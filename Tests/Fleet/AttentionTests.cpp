// SPDX-License-Identifier: Apache-2.0
#include "Application/Model/StoreStack.h"
#include "Controllers/REST/RESTHandler.h"
#include "Fleet/Attention.h"
#include "Fleet/Registry.h"
#include "Platform/NotificationCenter.h"
#include "Platform/Queues/MainQueue.h"
#include "Tests/Fleet/HandMadeConsole.h"
#include "Tests/Support/ScratchFolder.h"

#include <gmock/gmock.h>

namespace lodestar::test
{
namespace
{

using testing::SizeIs;

class AttentionTest : public testing::Test
{
protected:
    void SetUp() override
    {
        MainQueue::shared().adoptCurrentThread();
        StoreStack::shared().setApplicationDocumentsDirectory(m_folder.path());
        RESTHandler::sharedInstance().setCorvelList({});
        update();
    }
    void TearDown() override
    {
        Readings::shared().forgetAll();
        Attention::shared().adopt(nullptr);
        RESTHandler::sharedInstance().setCorvelList({});
        update();
        StoreStack::shared().close();
    }

    static const Attention::Picture& picture() { return *Attention::shared().picture(); }
    static bool becomes(const std::function<bool()>& predicate) { return MainQueue::shared().runUntil(predicate, 20s); }
    void update()
    {
        const int before = pictures;
        Attention::shared().update();
        ASSERT_TRUE(becomes([&] { return pictures > before; }));
    }

    int pictures = 0;

private:
    const ScratchFolder m_folder;
    const NotificationCenter::Observation m_observation =
        NotificationCenter::defaultCenter().addObserver("AttentionDidChange", [this] { ++pictures; });
};

TEST_F(AttentionTest, FollowsReadingsAndTheListOfConsolesInFewPictures)
{
    addDemoCorvel();
    addDemoCorvel();
    ASSERT_TRUE(becomes([] { return picture().consoles.size() == 2; }));
    const CorvelRef first = picture().consoles[0].corvel;
    const CorvelRef second = picture().consoles[1].corvel;
    EXPECT_THAT(picture().findings.list, SizeIs(0)) << "they were never tried";

    const int before = pictures;
    Readings& readings = Readings::shared();
    const Reading complete = HandMadeConsole("").reading;
    Reading offline = complete;
    offline.outcome = Reading::Outcome::Offline;
    readings.begin(first);
    readings.begin(second);
    readings.end(first, offline);
    ASSERT_TRUE(becomes([] { return picture().findings.needAttention == 1; })) << "there is nothing to keep yet";
    readings.end(second, offline);
    for (int i = 0; i < 100; ++i) {
        Attention::shared().update();
    }
    ASSERT_TRUE(becomes([] { return picture().findings.needAttention == 2; }));
    EXPECT_EQ(picture().fleet.offline, 2U);
    MainQueue::shared().runUntil([] { return false; }, 50ms);
    EXPECT_LE(pictures, before + 4);

    // Rows stand still until the next reading has ended.
    readings.begin(first);
    readings.begin(second);
    readings.end(first, complete);
    ASSERT_TRUE(becomes([] { return picture().fleet.updating == 1 && picture().fleet.offline == 1; }));
    EXPECT_EQ(picture().findings.needAttention, 2U);
    readings.end(second, offline);
    ASSERT_TRUE(becomes([] { return picture().findings.needAttention == 1; }));

    // A calm does not stand still: what the first console has is seen before the second one has answered.
    readings.begin(second);
    readings.end(second, complete);
    ASSERT_TRUE(becomes([] { return picture().findings.list.empty() && picture().fleet.underWay == 0; }));
    readings.begin(first);
    readings.begin(second);
    readings.end(first, offline);
    ASSERT_TRUE(becomes([] { return picture().findings.needAttention == 1 && picture().fleet.updating == 1; }));
    readings.end(second, offline);
    ASSERT_TRUE(becomes([] { return picture().findings.needAttention == 2; }));
    readings.begin(first);
    readings.end(first, complete);
    ASSERT_TRUE(becomes([] { return picture().findings.needAttention == 1; }));

    // Findings that a test shows stay whatever is read, until it takes them back.
    Attention::shared().adopt(std::make_shared<const Attention::Picture>());
    Attention::shared().update();
    MainQueue::shared().runUntil([] { return false; }, 50ms);
    EXPECT_EQ(picture().findings.needAttention, 0U);
    Attention::shared().adopt(nullptr);
    ASSERT_TRUE(becomes([] { return picture().findings.needAttention == 1; }));

    readings.begin(first);
    ASSERT_TRUE(becomes([] { return picture().fleet.updating == 1; }));
    deleteCorvelAtIndex(1);
    EXPECT_TRUE(becomes([] { return picture().consoles.size() == 1 && picture().findings.list.empty(); }));
}

} // namespace
} // namespace lodestar::test
