// SPDX-License-Identifier: Apache-2.0
#include "Fleet/Exposition.h"
#include "Tests/Fleet/HandMadeConsole.h"

#include <gmock/gmock.h>

namespace lodestar::test
{
namespace
{

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

/// What no person can type and no store should hold, but what would make the whole text unreadable.
TEST(ExpositionTest, KeepsConsolesApartWhoseNamesNoLabelCanHold)
{
    ExposedFleet fleet;
    fleet.made = now;
    std::vector<HandMadeConsole> consoles;
    for (const std::string& name : {std::string("a\xff"), std::string("a\xfe"), std::string("b\0\r\"\\\n", 6)}) {
        HandMadeConsole& console = consoles.emplace_back(name);
        console.addSystem("s", "operating");
        ConsoleSnapshot snapshot = console.snapshot();
        snapshot.address = "127.0.0.1";
        fleet.consoles.push_back(snapshot);
    }
    fleet.systems = {{"x\xff", nullptr, {}, {}, {}}, {"x\xfe", nullptr, {}, {}, {}}};
    const std::string text = Exposition(fleet).textAt(now);
    const std::string unknown = "\xEF\xBF\xBD";
    const std::string address = "\",address=\"127.0.0.1\"";
    EXPECT_THAT(text, AllOf(HasSubstr("lodestar_console_up{console=\"a" + unknown + address + "} 1\n"),
                            HasSubstr("lodestar_console_up{console=\"(2) a" + unknown + address + "} 1\n"),
                            HasSubstr("lodestar_console_up{console=\"b" + unknown + unknown + "\\\"\\\\\\n" + address +
                                      "} 1\n"),
                            HasSubstr("lodestar_named_system_up{name=\"x" + unknown + "\"} 0\n# TYPE")));
    EXPECT_THAT(text, Not(HasSubstr("console_age_seconds{"))) << "they were never complete";
}

/// The number of series is promised to those who pay for them.
TEST(ExpositionTest, HasAtMostSoManySeriesHoweverManyStatesAConsoleInvents)
{
    HandMadeConsole console("quay");
    console.reading.lastComplete = now - 90s;
    console.reading.certificate.emplace();
    for (int i = 0; i < 500; ++i) {
        const std::string id = std::to_string(i);
        const std::string mood = i % 3 == 0 ? "error " + id : "mood " + id;
        console.addSystem(id, mood, true);
        console.addPartition(ObjectType::LogicalPartition, id, mood);
        console.addPartition(ObjectType::VirtualIOServer, id, mood);
        console.addEvent(id, mood, now);
        console.add(ObjectType::Group, id, console.field("GroupName", id));
    }
    ExposedFleet fleet;
    fleet.made = now;
    fleet.consoles = {console.snapshot()};
    fleet.findings = findingsOf(fleet.consoles, now);
    const std::string text = Exposition(fleet).textAt(now + 10s);
    std::size_t series = 0;
    for (std::size_t at = text.find("\nlodestar_console_"); at != std::string::npos;
         at = text.find("\nlodestar_console_", at + 1)) {
        ++series;
    }
    EXPECT_LE(series, 120U);
    EXPECT_GT(series, 90U);
    EXPECT_THAT(text,
                HasSubstr("lodestar_console_age_seconds{console=\"quay\",address=\"quay.example\"} 100\n# EOF\n"));
    EXPECT_THAT(text, HasSubstr("state=\"other\",health=\"error\"}"));
}

} // namespace
} // namespace lodestar::test
