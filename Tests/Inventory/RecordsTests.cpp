// SPDX-License-Identifier: Apache-2.0
// Feeds written by hand: what each record reads from them, and how each kind judges.
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

using testing::ElementsAre;
using testing::IsEmpty;

using Text = std::optional<std::string>;

/// Elements with their places, from 1, as their texts.
std::string numbered(const std::vector<std::string>& names)
{
    std::string xml;
    int place = 0;
    for (const std::string& name : names) {
        xml += "<" + name + ">" + std::to_string(++place) + "</" + name + ">";
    }
    return xml;
}

constexpr auto machine = "<MachineTypeModelAndSerialNumber><MachineType>MT</MachineType><Model>MM</Model>"
                         "<SerialNumber>SN</SerialNumber></MachineTypeModelAndSerialNumber>";
constexpr auto console = "<ManagementConsoleName>CN</ManagementConsoleName><VersionInfo><Minor>4</Minor>"
                         "<Maintenance>3</Maintenance><Release>2</Release><Version>1</Version>"
                         "<ServicePackName>5.6</ServicePackName><BuildLevel>BL</BuildLevel></VersionInfo>";
constexpr auto system = "<SystemName>SY</SystemName><State>ST</State><PrimaryIPAddress>fd00::1</PrimaryIPAddress>"
                        "<ReferenceCode>RC</ReferenceCode>"
                        "<PhysicalSystemAttentionLEDState>true</PhysicalSystemAttentionLEDState>"
                        "<AssociatedSystemProcessorConfiguration><ConfigurableSystemProcessorUnits>PU"
                        "</ConfigurableSystemProcessorUnits></AssociatedSystemProcessorConfiguration>"
                        "<AssociatedSystemMemoryConfiguration><ConfigurableSystemMemory>MEM"
                        "</ConfigurableSystemMemory></AssociatedSystemMemoryConfiguration>"
                        "<Metadata><Atom><AtomID>ID</AtomID></Atom></Metadata>";
constexpr auto partition = "<PartitionName>PN</PartitionName><PartitionID>PI</PartitionID>"
                           "<PartitionType>PT</PartitionType><PartitionState>PS</PartitionState>"
                           "<ReferenceCode>RC</ReferenceCode><AssociatedManagedSystem href='https://c/s'/>";
const auto event =
    numbered({"problemNumber", "callHomeEnabled", "problemManagementHardwareRecord", "ApprovalState", "referenceCode",
              "referenceCodeExtension", "systemReferenceCode", "problemState", "firmwareFix", "firstReportedTimestamp",
              "lastReportedTimestamp", "primaryTimestamp", "shortDescription", "eventSeverity", "notificationType",
              "duplicateCount"}) +
    "<reportingConsoleNode><hostName>RH</hostName><managedTypeModelSerial><Model>RM</Model></managedTypeModelSerial>"
    "</reportingConsoleNode><failingManagedSystemNode><managedTypeModelSerial><Model>FM</Model>"
    "</managedTypeModelSerial></failingManagedSystemNode><analyzingConsoleNode><hostName>AH</hostName>"
    "<managedTypeModelSerial><Model>AM</Model></managedTypeModelSerial></analyzingConsoleNode><fieldReplaceableUnits>"
    "<FieldReplaceableUnit>" +
    numbered({"partNumber", "class", "fieldReplaceableUnitDescription", "locationCode", "previouslyReplaced",
              "replacedTimestamp", "replacementGroup"}) +
    "</FieldReplaceableUnit><FieldReplaceableUnit/></fieldReplaceableUnits>";
constexpr auto group = "<GroupName>GN</GroupName><GroupColor>cyan</GroupColor>"
                       "<AssociatedManagedSystems><link href='https://c/m'/></AssociatedManagedSystems>"
                       "<AssociatedVirtualIOServers><link href='https://c/v'/></AssociatedVirtualIOServers>"
                       "<AssociatedLogicalPartitions><link href='https://c/p'/><link/></AssociatedLogicalPartitions>";

Feed feedOf(const std::string& entries)
{
    return Feed(XMLElement::parse("<feed>" + entries + "</feed>").value());
}

template <typename Kind>
std::string entry(const std::string& fields)
{
    const std::string type(Kind::type);
    return "<entry><content><" + type + ">" + fields + "</" + type + "></content></entry>";
}

/// The record between an entry of another type and one without fields.
template <typename Kind>
std::vector<Kind> recordAndEmptyOne(const std::string& fields)
{
    const auto records = recordsOf<Kind>(feedOf("<entry><content><Other>" + fields + "</Other></content></entry>" +
                                                entry<Kind>(fields) + entry<Kind>("")));
    EXPECT_EQ(records.size(), 2U);
    return records;
}

std::string demoFeed(std::string_view type)
{
    std::ifstream file(LODESTAR_DEMO_FOLDER "/" + std::string(type) + ".xml");
    return {std::istreambuf_iterator<char>(file), {}};
}

template <typename Kind>
using Fields = std::vector<Text (Kind::*)() const>;

const Fields<ConsoleInformation> consoleFields = {&ConsoleInformation::name, &ConsoleInformation::buildLevel};
const Fields<MachineIdentity> machineFields = {&MachineIdentity::serialNumber, &MachineIdentity::machineType,
                                               &MachineIdentity::model};
const Fields<ManagedSystem> systemFields = {&ManagedSystem::name,
                                            &ManagedSystem::state,
                                            &ManagedSystem::primaryIPAddress,
                                            &ManagedSystem::attentionLEDState,
                                            &ManagedSystem::availableProcessingUnits,
                                            &ManagedSystem::availableMemory,
                                            &ManagedSystem::identifier};
const Fields<Partition> partitionFields = {&Partition::name, &Partition::identifier, &Partition::kind,
                                           &Partition::state};
using Event = ServiceableEvent;
const Fields<Event> eventFields = {&Event::problemNumber,       &Event::callHomeEnabled, &Event::hardwareRecord,
                                   &Event::approvalState,       &Event::referenceCode,   &Event::referenceCodeExtension,
                                   &Event::systemReferenceCode, &Event::problemState,    &Event::firmwareFix,
                                   &Event::firstReported,       &Event::lastReported,    &Event::primaryTimestamp,
                                   &Event::shortDescription,    &Event::severity,        &Event::notificationType,
                                   &Event::duplicateCount};
const Fields<EventNode> nodeFields = {&EventNode::hostName, &EventNode::model};
using Unit = FieldReplaceableUnit;
const Fields<Unit> unitFields = {&Unit::partNumber,      &Unit::unitClass,          &Unit::unitDescription,
                                 &Unit::locationCode,    &Unit::previouslyReplaced, &Unit::replacedTimestamp,
                                 &Unit::replacementGroup};
const Fields<ResourceGroup> groupFields = {&ResourceGroup::name, &ResourceGroup::color};

template <typename Kind>
void expectFields(const Kind& record, const Fields<Kind>& fields, const std::vector<Text>& expected)
{
    std::vector<Text> texts;
    for (const auto field : fields) {
        texts.push_back((record.*field)());
    }
    EXPECT_EQ(texts, expected);
    for (const auto field : fields) {
        EXPECT_EQ((Kind().*field)(), std::nullopt);
    }
}

template <typename Kind>
void expectWhole(const Kind& record, const Fields<Kind>& fields)
{
    for (const auto field : fields) {
        EXPECT_TRUE((record.*field)());
    }
}

/// The records of the demonstration feed; each holds every field.
template <typename Kind, typename Base>
std::vector<Kind> wholeDemoRecords(const Fields<Base>& fields)
{
    const Feed feed(XMLElement::parse(demoFeed(Kind::type)).value());
    for (const XMLElement& each : feed.entries()) {
        EXPECT_TRUE(parseFeedDate(each.child("published").text().value_or("")));
        expectWhole<Base>(recordOfEntry<Kind>(each), fields);
    }
    EXPECT_EQ(recordsOf<Kind>(feed).size(), feed.entryCount());
    EXPECT_GT(feed.entryCount(), 0U);
    return recordsOf<Kind>(feed);
}

TEST(RecordsTests, ReadEveryFieldAndNoneWhereTheConsoleSaysNothing)
{
    const auto consoles = recordAndEmptyOne<ConsoleInformation>(std::string(console) + machine);
    expectFields(consoles[0], consoleFields, {"CN", "BL"});
    expectFields(consoles[0].identity(), machineFields, {"SN", "MT", "MM"});
    EXPECT_EQ(consoles[0].version(), "V1R2.3.4.5.6");
    EXPECT_EQ(consoles[1].version(), "V(null)R(null).(null).(null).(null)");
    EXPECT_EQ(ConsoleInformation::of(feedOf(entry<ConsoleInformation>(console))).name(), "CN");
    EXPECT_FALSE(ConsoleInformation::of(Feed::notAvailable()));

    const auto systems = recordAndEmptyOne<ManagedSystem>(std::string(system) + machine);
    expectFields(systems[0], systemFields, {"SY", "ST", "fd00::1", "true", "PU", "MEM", "ID"});
    EXPECT_EQ(systems[0].identity().model(), "MM");
    EXPECT_EQ(systems[0].referenceCode(), "RC");
    EXPECT_TRUE(systems[0].isAttentionLEDLit() && !systems[1].isAttentionLEDLit());
    const Feed identified = feedOf("<entry><content><Metadata><Atom><AtomID>beside</AtomID></Atom></Metadata>"
                                   "<ManagedSystem/></content></entry>" +
                                   entry<ManagedSystem>(system));
    EXPECT_EQ(ManagedSystem::identifierAt(identified, 0), "beside");
    EXPECT_EQ(ManagedSystem::identifierAt(identified, 1), "ID");
    EXPECT_EQ(ManagedSystem::identifierAt(identified, 2), std::nullopt);

    const auto partitions = recordAndEmptyOne<LogicalPartition>(partition);
    expectFields<Partition>(partitions[0], partitionFields, {"PN", "PI", "PT", "PS"});
    EXPECT_EQ(partitions[0].referenceCode(), "RC");
    EXPECT_EQ(partitions[0].systemNameLink(), "https://c/s/quick/SystemName");
    EXPECT_EQ(partitions[1].systemNameLink(), "(null)/quick/SystemName");
    EXPECT_EQ(recordAndEmptyOne<VirtualIOServer>(partition)[0].name(), "PN");

    const auto events = recordAndEmptyOne<ServiceableEvent>(event);
    expectFields(events[0], eventFields,
                 {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12", "13", "14", "15", "16"});
    expectFields(events[0].reportingConsole(), nodeFields, {"RH", "RM"});
    expectFields(events[0].failingSystem(), nodeFields, {std::nullopt, "FM"});
    expectFields(events[0].analyzingConsole(), nodeFields, {"AH", "AM"});
    ASSERT_EQ(events[0].units().size(), 2U);
    expectFields(events[0].units()[0], unitFields, {"1", "2", "3", "4", "5", "6", "7"});
    EXPECT_THAT(events[1].units(), IsEmpty());
    EXPECT_EQ(events[0].title() + events[1].title(), "4 (#1) (#)");

    const auto groups = recordAndEmptyOne<ResourceGroup>(group);
    expectFields(groups[0], groupFields, {"GN", "cyan"});
    std::vector<Text> links;
    for (const ResourceGroup::Member& member : groups[0].members()) {
        links.push_back(ResourceGroup::stateLinkOf(member));
    }
    EXPECT_THAT(links, ElementsAre("https://c/p/quick/PartitionState", std::nullopt, "https://c/v/quick/PartitionState",
                                   "https://c/m/quick/State"));
    EXPECT_THAT(groups[1].members(), IsEmpty());
}

TEST(RecordsTests, DemonstrationFeedsHoldEveryField)
{
    const auto consoles = wholeDemoRecords<ConsoleInformation>(consoleFields);
    ASSERT_EQ(consoles.size(), 1U);
    expectWhole(consoles[0].identity(), machineFields);
    EXPECT_EQ(consoles[0].version().find("(null)"), std::string::npos);
    for (const ManagedSystem& each : wholeDemoRecords<ManagedSystem>(systemFields)) {
        expectWhole(each.identity(), machineFields);
    }
    for (const Partition& each : wholeDemoRecords<LogicalPartition>(partitionFields)) {
        EXPECT_TRUE(each.systemNameLink().starts_with("https://"));
    }
    for (const Partition& each : wholeDemoRecords<VirtualIOServer>(partitionFields)) {
        EXPECT_TRUE(each.systemNameLink().starts_with("https://"));
    }
    for (const ServiceableEvent& each : wholeDemoRecords<ServiceableEvent>(eventFields)) {
        expectWhole(each.reportingConsole(), nodeFields);
        expectWhole(each.analyzingConsole(), nodeFields);
        for (const FieldReplaceableUnit& unit : each.units()) {
            expectWhole(unit, unitFields);
        }
    }
    EXPECT_FALSE(wholeDemoRecords<ResourceGroup>(groupFields).front().members().empty());
}

TEST(RecordsTests, DemonstrationFeedsShowEveryLookInFewClearSlicesAndLeadToWhatIsThere)
{
    using testing::AllOf;
    using testing::Ge;
    using testing::IsSupersetOf;
    using testing::SizeIs;
    std::set<std::pair<bool, bool>> badges;
    std::set<Text> systemStates;
    for (const ManagedSystem& each : wholeDemoRecords<ManagedSystem>(systemFields)) {
        badges.emplace(each.health() == Health::Error, each.isAttentionLEDLit());
        systemStates.insert(each.state());
    }
    EXPECT_THAT(badges, SizeIs(4));
    const auto fewSlices = SizeIs(AllOf(Ge(4U), testing::Le(6U)));
    EXPECT_THAT(systemStates, AllOf(fewSlices, IsSupersetOf({"operating", "error"})));
    std::set<Text> partitionStates;
    for (const Partition& each : wholeDemoRecords<LogicalPartition>(partitionFields)) {
        partitionStates.insert(each.state());
    }
    EXPECT_THAT(partitionStates, AllOf(fewSlices, IsSupersetOf({"running", "not activated", "error", "starting"})));
    std::set<Text> colors;
    for (const ResourceGroup& each : wholeDemoRecords<ResourceGroup>(groupFields)) {
        colors.insert(each.color());
    }
    EXPECT_THAT(colors, SizeIs(Ge(9U)));

    std::set<std::string> known;
    std::set<std::string> linked;
    for (const auto& [type, schema] : feedTable) {
        for (const XMLElement& each : Feed(XMLElement::parse(demoFeed(type)).value()).entries()) {
            const XMLElement object = contentOf(each, type);
            known.insert(each.child("link").attribute("href").value_or(""));
            linked.insert(object.child("AssociatedManagedSystem").attribute("href").value_or(*known.begin()));
            for (const char* list :
                 {"AssociatedLogicalPartitions", "AssociatedVirtualIOServers", "AssociatedManagedSystems"}) {
                for (const XMLElement& link : object.child(list).children("link")) {
                    linked.insert(link.attribute("href").value_or("none"));
                }
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
        const Feed systems = feedOf(entry<ManagedSystem>("<State>" + text + "</State>"));
        EXPECT_EQ(recordsOf<ManagedSystem>(systems)[0].health(), ofSystem) << state;
        const Feed partitions = feedOf(entry<LogicalPartition>("<PartitionState>" + text + "</PartitionState>"));
        EXPECT_EQ(recordsOf<LogicalPartition>(partitions)[0].health(), ofPartition) << state;
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
