// SPDX-License-Identifier: Apache-2.0
// How each kind judges, what the demonstration's feeds hold, and what is read of damaged feeds.
#include "Inventory/ConsoleInformation.h"
#include "Inventory/FeedDate.h"
#include "Inventory/ManagedSystem.h"
#include "Inventory/Partition.h"
#include "Inventory/ResourceGroup.h"
#include "Inventory/ServiceableEvent.h"
#include "Tests/Support/LongRun.h"
#include "Tests/Support/TreeReference.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <random>
#include <set>

namespace lodestar::test
{
namespace
{

using testing::AllOf;
using testing::Ge;
using testing::IsSupersetOf;
using testing::SizeIs;

std::string demoFeed(std::string_view type)
{
    std::ifstream file(LODESTAR_DEMO_FOLDER "/" + std::string(type) + ".xml");
    return {std::istreambuf_iterator<char>(file), {}};
}

/// The records of a demonstration feed, which are all of its entries.
template <typename Kind>
std::vector<Kind> demoRecords()
{
    const Feed feed(XMLElement::parse(demoFeed(Kind::type)).value());
    EXPECT_TRUE(parseFeedDate(feed.published().value_or(""))) << Kind::type;
    std::vector<Kind> records = recordsOf<Kind>(feed);
    EXPECT_EQ(records.size(), feed.entryCount()) << Kind::type;
    EXPECT_FALSE(records.empty());
    return records;
}

TEST(RecordsTests, DemonstrationFeedsShowEveryLookInFewClearSlicesAndLeadToWhatIsThere)
{
    EXPECT_EQ(demoRecords<ConsoleInformation>().at(0).version().find("(null)"), std::string::npos);
    std::set<std::pair<bool, bool>> badges;
    std::set<std::string> systemStates;
    for (const ManagedSystem& each : demoRecords<ManagedSystem>()) {
        EXPECT_TRUE(each.name() && each.identifier() && each.availableMemory() && each.identity().serialNumber());
        badges.emplace(each.health() == Health::Error, each.isAttentionLEDLit());
        systemStates.insert(each.state().value_or("none"));
    }
    EXPECT_THAT(badges, SizeIs(4));
    const auto fewSlices = SizeIs(AllOf(Ge(4U), testing::Le(6U)));
    EXPECT_THAT(systemStates, AllOf(fewSlices, IsSupersetOf({"operating", "error"})));
    std::set<std::string> partitionStates;
    for (const Partition& each : demoRecords<LogicalPartition>()) {
        partitionStates.insert(each.state().value_or("none"));
    }
    EXPECT_THAT(partitionStates, AllOf(fewSlices, IsSupersetOf({"running", "not activated", "error", "starting"})));
    for (const Partition& each : demoRecords<VirtualIOServer>()) {
        EXPECT_TRUE(each.name() && each.state());
    }
    std::size_t units = 0;
    for (const ServiceableEvent& each : demoRecords<ServiceableEvent>()) {
        EXPECT_TRUE(each.problemNumber() && each.approvalState() && each.lastReported() && each.shortDescription());
        units += each.units().size();
    }
    EXPECT_GT(units, 0U);
    std::set<std::string> colors;
    for (const ResourceGroup& each : demoRecords<ResourceGroup>()) {
        colors.insert(each.color().value_or("none"));
    }
    EXPECT_THAT(colors, SizeIs(Ge(9U)));

    std::set<std::string> known;
    std::set<std::string> linked;
    for (const auto& [type, schema] : feedTable) {
        for (const XMLElement& each : Feed(XMLElement::parse(demoFeed(type)).value()).entries()) {
            const XMLElement object = contentOf(each, type);
            known.insert(each.child("link").attribute("href").value_or(""));
            linked.insert(object.child("AssociatedManagedSystem").attribute("href").value_or(*known.begin()));
            for (const ResourceGroup::Member& member : ResourceGroup(object).members()) {
                linked.insert(member.link.attribute("href").value_or("none"));
            }
        }
    }
    EXPECT_THAT(linked, SizeIs(Ge(10U)));
    EXPECT_TRUE(std::ranges::includes(known, linked));
}

TEST(RecordsTests, EachKindJudgesByItsOwnWords)
{
    constexpr auto none = std::nullopt;
    struct Row {
        const char* state;
        Health system;
        Health partition;
        std::optional<Health> member;
    };
    const std::vector<Row> rows = {
        {"operating", Health::Good, Health::Alert, Health::Good},
        {"running", Health::Idle, Health::Good, Health::Good},
        {"not activated", Health::Idle, Health::Idle, Health::Idle},
        {"not available", Health::Idle, Health::Alert, Health::Idle},
        {"alert", Health::Idle, Health::Alert, Health::Alert},
        {"error", Health::Error, Health::Error, Health::Error},
        {"incomplete", Health::Error, Health::Alert, none},
        {"error - operating", Health::Error, Health::Alert, none},
        {"Error", Health::Idle, Health::Alert, none},
        {"Operating", Health::Idle, Health::Alert, none},
        {"", Health::Idle, Health::Alert, none},
    };
    for (const auto& [state, ofSystem, ofPartition, ofMember] : rows) {
        const std::string text(state);
        EXPECT_EQ(ManagedSystem(XMLElement::parse("<s><State>" + text + "</State></s>").value()).health(), ofSystem)
            << state;
        EXPECT_EQ(Partition(XMLElement::parse("<p><PartitionState>" + text + "</PartitionState></p>").value()).health(),
                  ofPartition)
            << state;
        EXPECT_EQ(ResourceGroup::healthOfMember(text), ofMember) << state;
    }
    EXPECT_EQ(ManagedSystem().health(), Health::Idle);
    EXPECT_EQ(Partition().health(), Health::Alert);
}

TEST(RecordsTests, OfDamagedFeedsSayWhatTheLibrarysOwnTreeSays)
{
    std::mt19937 random(5); // NOLINT(cert-msc51-cpp): the same damage in every run
    const int tries = rounds(40, 2000);
    for (int i = 0; i < tries; ++i) {
        std::string hurt = demoFeed(ManagedSystem::type);
        if (random() % 2 == 0) {
            hurt.resize(random() % hurt.size());
        }
        for (std::size_t places = random() % 20; places > 0 && !hurt.empty(); --places) {
            hurt[random() % hurt.size()] = "<>&;/'\" a\xff"[random() % 10];
        }
        auto root = XMLElement::parse(hurt);
        std::vector<std::string> states;
        for (const XMLElement& each : Feed(root ? root.value() : XMLElement()).entries()) {
            states.push_back(recordOfEntry<ManagedSystem>(each).state().value_or("(none)"));
        }
        EXPECT_EQ(states, readTreeEntries(hurt, {"content", "ManagedSystem", "State"})) << i;
    }
    RecordProperty("tries", tries);
}

} // namespace
} // namespace lodestar::test
