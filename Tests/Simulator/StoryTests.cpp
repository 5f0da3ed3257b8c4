// SPDX-License-Identifier: Apache-2.0
// A story as a client sees it, moment for moment, and the story that is delivered.
#include "Fleet/Registry.h"
#include "Inventory/ManagedSystem.h"
#include "Inventory/Partition.h"
#include "Inventory/ServiceableEvent.h"
#include "Simulator/Story.h"
#include "Tests/REST/RESTHandlerFixture.h"

#include <fstream>

namespace lodestar::test
{

namespace
{

constexpr const char* text = R"(# A remark.
0    all console     calm
0    0   console     name="Harbour \"A\""
5    0   system      1 state=incomplete led=on
+5   0   partition   0-1 state="not activated"
10   0   server      vios-harbour-1a gone
10   0   event       1042 open code=X417-2208 callhome=yes ago=60 text="Supply <2>"
20   0   event       1042 closed
20   0   feed        LogicalPartition missing status=503
20   1   console     logon=403
30   0   certificate swaps once
30   0   feed        LogicalPartition back
30   1   console     back answers=502
40   1   console     back
40   1   console     refuses
50   all console     back
)";

class StoryTest : public ConsoleTest
{
protected:
    /// What a refresh comes to: an error, or the objects that are not as they should be and how many there are.
    std::string refresh(int console)
    {
        const CorvelRef read = m_corvels.at(static_cast<std::size_t>(console));
        const Result<std::string> result = settled(fetchInventory(read));
        if (!result) {
            return description(result.error());
        }
        std::string seen;
        for (const ManagedSystem& system : recordsOf<ManagedSystem>(feedOfType(*read, ObjectType::ManagedSystem))) {
            seen += system.state() == "operating" ? "" : system.state().value_or("") + "; ";
        }
        const Feed partitions = feedOfType(*read, ObjectType::LogicalPartition);
        int stopped = 0;
        for (const LogicalPartition& partition : recordsOf<LogicalPartition>(partitions)) {
            stopped += partition.state() == "not activated" ? 1 : 0;
        }
        seen += !partitions.isNA() ? std::to_string(stopped) + " stopped" : "no partitions";
        for (const ServiceableEvent& event :
             recordsOf<ServiceableEvent>(feedOfType(*read, ObjectType::ServiceableEvent))) {
            seen += "; " + event.problemNumber().value_or("") + " " + event.problemState().value_or("") + " since " +
                    event.firstReported().value_or("");
        }
        return seen + "; " + std::to_string(feedOfType(*read, ObjectType::VirtualIOServer).entries().size());
    }

    ScratchFolder m_stories;
    std::vector<CorvelRef> m_corvels;
};

} // namespace

TEST_F(StoryTest, HappensAtItsMomentsAndTheSameWayAgain)
{
    std::ofstream(m_stories.file("a.story")) << text;
    for (int run = 0; run < 2; ++run) {
        simulator::SimulatorProcess told({.consoles = 2,
                                          .story = m_stories.file("a.story"),
                                          .storyAt = 4,
                                          .storyEpoch = 1000000,
                                          .storyStill = true});
        m_corvels = {corvelOf(told, 0), corvelOf(told, 1)};
        EXPECT_EQ(refresh(0), "0 stopped; 6");
        told.advanceStory(1);
        EXPECT_EQ(refresh(0), "incomplete; 0 stopped; 6");
        EXPECT_EQ(refresh(1), "0 stopped; 6") << "nothing was said of this console";
        told.advanceStory(5);
        EXPECT_EQ(refresh(0), "incomplete; 2 stopped; 1042 Open since 999950; 5");
        const std::string before = told.certificateFingerprint();
        told.advanceStory(10);
        EXPECT_EQ(refresh(0), "incomplete; no partitions; 1042 Closed since 999950; 5");
        EXPECT_THAT(refresh(1), HasSubstr("user or password"));

        told.advanceStory(10);
        EXPECT_EQ(told.certificateFingerprint(), before) << "nobody has tried yet";
        EXPECT_THAT(refresh(0), HasSubstr("-1202"));
        EXPECT_NE(told.certificateFingerprint(), before);
        EXPECT_EQ(refresh(0), "incomplete; 2 stopped; 1042 Closed since 999950; 5") << "the new one is taken";
        EXPECT_THAT(refresh(1), HasSubstr("has an error"));
        told.advanceStory(10);
        EXPECT_THAT(refresh(1), HasSubstr("-1004"));
        told.advanceStory(10);
        EXPECT_EQ(refresh(1), "0 stopped; 6");
        m_corvels.clear();
    }
}

TEST_F(StoryTest, TheClockThatRunsDoesWhatIsDueAndKeepsAnInterceptorInPlace)
{
    std::ofstream(m_stories.file("b.story")) << "0 0 console calm\n1 0 certificate swaps\n1 0 system all state=error\n";
    simulator::SimulatorProcess told({.systems = 1, .story = m_stories.file("b.story")});
    m_corvels = {corvelOf(told)};
    MainQueue::shared().runUntil([&] { return told.summary().systemErrors == 1; }, std::chrono::seconds(30));
    EXPECT_EQ(told.summary().systemErrors, 1);
    EXPECT_EQ(refresh(0), "error; 0 stopped; 6") << "without a key there is no session check";
    for (int attempt = 0; attempt < 3; ++attempt) {
        EXPECT_THAT(refresh(0), HasSubstr("-1202")) << attempt;
    }
}

TEST(Story, SaysWhichLineIsWrong)
{
    using simulator::Story;
    const simulator::Inventory inventory = makeInventory(simulator::Settings{}, 0);
    const auto complaint = [&](const std::string& line) -> std::string {
        try {
            Story::parse("\n0 0 console calm\n" + line + "\n", "night").check({&inventory});
        } catch (const std::invalid_argument& error) {
            return error.what();
        }
        return "none";
    };
    EXPECT_EQ(complaint("+1 0 system 7 state=\"power off\" # yes"), "night, line 3: a system has no \"#\"");
    for (const char* wrong :
         {"1 0", "x 0 console calm", "-1 0 console calm", "1 0 sytem 1 state=x", "1 0 system 1 lamp=on",
          "1 0 system helios state=x", "1 0 system 8 state=x", "1 0 partition 3-99 gone", "1 1 console silent",
          "1 0 system 1 state=\"x", "1 0 feed Groups missing", "1 0 feed Group missing status=abc",
          "1 0 event 7 closed", "1 0 fault nothing on", "1 0 fault refuseFeed:Group:0 on", "1 all console name=x",
          "1 0 console"}) {
        EXPECT_THAT(complaint(wrong), StartsWith("night, line 3: ")) << wrong;
    }
    EXPECT_EQ(complaint("1 0 fault stallFeed:Group on"), "none");
    EXPECT_EQ(Story::parse("3 1 console name=\"a \\\"b\\\"\\nc\"", "s").nameOf(1), "a \"b\"\nc");

    const std::vector<const simulator::Inventory*> six(6, &inventory);
    EXPECT_NO_THROW(Story::read(LODESTAR_STORIES "/night.story").check(six)) << "the story that ./run tells";
}

} // namespace lodestar::test
