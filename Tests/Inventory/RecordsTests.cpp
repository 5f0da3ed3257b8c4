// SPDX-License-Identifier: Apache-2.0
// What the demonstration's feeds hold, what is read of damaged feeds, and how rows are dated and found.
#include "Inventory/ConsoleInformation.h"
#include "Inventory/FeedDate.h"
#include "Inventory/ManagedSystem.h"
#include "Inventory/Metrics/MetricsDocument.h"
#include "Inventory/Partition.h"
#include "Inventory/ResourceGroup.h"
#include "Inventory/SearchIndex.h"
#include "Inventory/ServiceableEvent.h"
#include "Tests/Support/LongRun.h"
#include "Tests/Support/TreeReference.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <fstream>
#include <functional>
#include <iterator>
#include <random>
#include <set>
#include <type_traits>

namespace lodestar::test
{
namespace
{

using testing::AllOf;
using testing::ElementsAre;
using testing::Ge;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::SizeIs;

std::string demoFeed(std::string_view type, const char* extension = ".xml")
{
    std::ifstream file(LODESTAR_DEMO_FOLDER "/" + std::string(type) + extension);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// What there is to read of the records of a demonstration feed, which are all of its entries.
template <typename Kind, typename Read>
auto readings(const Read& read)
{
    const Feed feed(XMLElement::parse(demoFeed(Kind::type)).value());
    EXPECT_TRUE(parseFeedDate(feed.published().value_or(""))) << Kind::type;
    const std::vector<Kind> records = recordsOf<Kind>(feed);
    EXPECT_EQ(records.size(), feed.entryCount()) << Kind::type;
    std::set<std::decay_t<std::invoke_result_t<Read, Kind>>> all;
    for (const Kind& each : records) {
        all.insert(std::invoke(read, each));
    }
    return all;
}

TEST(RecordsTests, DemonstrationFeedsShowEveryLookInFewClearSlicesAndLeadToWhatIsThere)
{
    const auto hasVersion = [](const ConsoleInformation& of) {
        return of.version().find("(null)") == std::string::npos;
    };
    EXPECT_THAT(readings<ConsoleInformation>(hasVersion), ElementsAre(true));
    const auto badges = [](const ManagedSystem& of) {
        EXPECT_TRUE(of.name() && of.identifier() && of.availableMemory() && of.identity().serialNumber());
        return std::pair(of.health() == Health::Error, of.isAttentionLEDLit());
    };
    EXPECT_THAT(readings<ManagedSystem>(badges), SizeIs(4));
    const auto fewSlices = SizeIs(AllOf(Ge(4U), testing::Le(6U)));
    EXPECT_THAT(readings<ManagedSystem>(&ManagedSystem::state), AllOf(fewSlices, IsSupersetOf({"operating", "error"})));
    EXPECT_THAT(readings<LogicalPartition>(&Partition::state),
                AllOf(fewSlices, IsSupersetOf({"running", "not activated", "error", "starting"})));
    const auto isWhole = [](const Partition& of) { return of.name() && of.state(); };
    EXPECT_THAT(readings<VirtualIOServer>(isWhole), ElementsAre(true));
    const auto units = [](const ServiceableEvent& of) {
        EXPECT_TRUE(of.problemNumber() && of.approvalState() && of.lastReported() && of.shortDescription());
        return of.units().size();
    };
    EXPECT_GT(*readings<ServiceableEvent>(units).rbegin(), 0U);
    EXPECT_THAT(readings<ResourceGroup>(&ResourceGroup::color), SizeIs(Ge(9U)));

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
    const auto metrics = MetricsDocument::parse(demoFeed(ManagedSystem::type, ".json"));
    EXPECT_EQ(metrics.value().root().path({"systemUtil", "utilSamples"}).elements().size(), 240U);
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

using namespace std::chrono_literals;

TEST(FeedDateTests, ReadsThePatternAndNothingElse)
{
    EXPECT_EQ(parseFeedDate("2026-07-03T10:25:00.000Z"), (FeedDate{2026y / 7 / 3, 10h + 25min}));
    EXPECT_EQ(parseFeedDate("2024-02-29T23:59:59.999Z"), (FeedDate{2024y / 2 / 29, 24h - 1ms}));
    for (const char* text :
         {"", "2026-07-03", "2026-07-03T10:25:00Z", "2026-07-03T10:25:00.000", "2026-07-03T10:25:00.000z",
          "2026-07-03T10:25:00.000+02:00", "2026-07-03 10:25:00.000Z", " 2026-07-03T10:25:00.000Z",
          "2026-07-03T10:25:00.000Z\n", "26-07-03T10:25:00.000Z", "2026-13-03T10:25:00.000Z",
          "0000-01-01T00:00:00.000Z", "2026-02-29T10:25:00.000Z", "2026-07-03T24:00:00.000Z",
          "2026-07-03T10:60:00.000Z", "2026-07-03T10:25:00.0a0Z", "２026-07-03T10:25:00.00Z"}) {
        EXPECT_EQ(parseFeedDate(text), std::nullopt) << text;
    }
}

TEST(SearchIndexTests, FindsRowsByAnyPartOfTheirNameWhateverItsCase)
{
    SearchIndex index;
    for (const char* name : {"ABC-1", "", "xabcx", "abcabc", "b", "ÄRGER", "a", "bc", "Straße"}) {
        index.add(name);
    }
    EXPECT_THAT(index.rowsContaining("abc"), ElementsAre(0U, 2U, 3U));
    EXPECT_THAT(index.rowsContaining("ABC"), ElementsAre(0U, 2U, 3U));
    EXPECT_THAT(index.rowsContaining("ärg"), ElementsAre(5U));
    EXPECT_THAT(index.rowsContaining("bc"), ElementsAre(0U, 2U, 3U, 7U));
    EXPECT_THAT(index.rowsContaining("STRAẞE"), ElementsAre(8U));
    EXPECT_THAT(index.rowsContaining("ss"), IsEmpty()) << "no part of the name could be marked";
    EXPECT_THAT(index.rowsContaining("abc-12"), IsEmpty());
    // Not across the end of one name and the start of the next.
    EXPECT_THAT(index.rowsContaining(std::string_view("a\0bc", 4)), IsEmpty());
    EXPECT_EQ(index.rowsContaining("").size(), 9U);
}

} // namespace
} // namespace lodestar::test
