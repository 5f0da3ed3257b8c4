// SPDX-License-Identifier: Apache-2.0
// Feeds in shapes that the simulated consoles never write, through the client into records.
#include "Fleet/Registry.h"
#include "Inventory/ConsoleInformation.h"
#include "Inventory/ManagedSystem.h"
#include "Inventory/Partition.h"
#include "Inventory/ServiceableEvent.h"
#include "Tests/REST/RESTHandlerFixture.h"

#include <utility>

namespace lodestar::test
{
namespace
{

using testing::SizeIs;

using Text = std::optional<std::string>;
using Texts = std::vector<Text>;
constexpr auto none = std::nullopt;

/// Everything has a prefix; an element without a type, a comment, CDATA, an empty element, a second entry.
constexpr auto consoleFeed = R"(<?xml version='1.0'?><!-- made by hand -->
<a:feed xmlns:a="http://www.w3.org/2005/Atom">
  <a:entry>
    <a:content a:type='x'>
      <m:ManagementConsole xmlns:m='urn:m' schemaVersion = "V1_0" >
        <m:VersionInfo><m:ServicePackName>5.6</m:ServicePackName><m:Minor><![CDATA[4]]></m:Minor>
          <m:Maintenance>3</m:Maintenance><!-- <m:Release>9</m:Release> --><m:Release>2</m:Release><m:BuildLevel/>
          <m:Version>1</m:Version></m:VersionInfo>
        <m:ManagementConsoleName>Ridge <![CDATA[& <Way>]]></m:ManagementConsoleName>
        <m:MachineTypeModelAndSerialNumber><m:SerialNumber>S&#78;</m:SerialNumber><m:Model>M&amp;M</m:Model>
        </m:MachineTypeModelAndSerialNumber>
      </m:ManagementConsole>
    </a:content>
    <a:published>2015-03-01T10:00:00.000Z</a:published>
  </a:entry>
  <a:entry><a:content><m:ManagementConsole xmlns:m='urn:m'><m:ManagementConsoleName>another</m:ManagementConsoleName>
  </m:ManagementConsole></a:content></a:entry>
</a:feed>
)";

/// No name space at all; entries that hold something else or nothing, metadata inside, beside and nowhere.
constexpr auto systemFeed = R"(<feed><updated/><entry/><entry><content><Other><State>error</State></Other></content>
</entry><entry><content><ManagedSystem><Metadata><Atom><AtomID>ID</AtomID></Atom></Metadata>
<AssociatedSystemMemoryConfiguration><ConfigurableSystemMemory>MEM</ConfigurableSystemMemory>
</AssociatedSystemMemoryConfiguration><AssociatedSystemProcessorConfiguration><Other/><ConfigurableSystemProcessorUnits>
PU</ConfigurableSystemProcessorUnits></AssociatedSystemProcessorConfiguration><State>error - terminated</State>
<PhysicalSystemAttentionLEDState>true</PhysicalSystemAttentionLEDState><ReferenceCode>RC</ReferenceCode>
<PrimaryIPAddress>fd00::1</PrimaryIPAddress><SystemName> two  words </SystemName><SystemName>second</SystemName>
<MachineTypeModelAndSerialNumber><MachineType>MT</MachineType></MachineTypeModelAndSerialNumber></ManagedSystem>
</content></entry><entry><content><Metadata><Atom><AtomID>beside</AtomID></Atom></Metadata><ManagedSystem><State>
error</State><PhysicalSystemAttentionLEDState>True</PhysicalSystemAttentionLEDState></ManagedSystem></content></entry>
<entry><content><ManagedSystem/></content></entry></feed>)";

/// In another encoding, with attributes in another order and a prefix of theirs.
constexpr auto partitionFeed =
    "<?xml version='1.0' encoding='ISO-8859-1'?>\r\n<feed><entry><content>"
    "<LogicalPartition><PartitionType>PT</PartitionType><PartitionName>K\xf6ln</PartitionName>"
    "<PartitionState>running</PartitionState><ReferenceCode>RC</ReferenceCode><PartitionID>7"
    "</PartitionID><AssociatedManagedSystem rel='r' xmlns:x='urn:x' x:href='https://c/s?a&amp;b'>"
    "</AssociatedManagedSystem></LogicalPartition></content></entry></feed>";
constexpr auto serverFeed = "<feed><entry><content><VirtualIOServer><PartitionName>VN</PartitionName>"
                            "<AssociatedManagedSystem rel='related'/></VirtualIOServer></content></entry></feed>";

/// Elements in the opposite order, each with its place as its text.
std::string numbered(const std::vector<std::string>& names)
{
    std::string xml;
    for (std::size_t i = names.size(); i > 0; --i) {
        xml += "\n\t<" + names[i - 1] + " kb='CUR'\n>" + std::to_string(i) + "</" + names[i - 1] + " >";
    }
    return xml;
}

std::string eventFeed()
{
    return "<feed xmlns='urn:a'><entry><content><s:ServiceableEvent xmlns:s='urn:s' "
           "xmlns='urn:t'><fieldReplaceableUnits><FieldReplaceableUnit>" +
           numbered({"partNumber", "class", "fieldReplaceableUnitDescription", "locationCode", "previouslyReplaced",
                     "replacedTimestamp", "replacementGroup"}) +
           "</FieldReplaceableUnit><Other/><FieldReplaceableUnit/></fieldReplaceableUnits><analyzingConsoleNode>"
           "<managedTypeModelSerial><SerialNumber/><Model>AM</Model></managedTypeModelSerial><hostName>AH</hostName>"
           "</analyzingConsoleNode><failingManagedSystemNode><managedTypeModelSerial><Model>FM</Model>"
           "</managedTypeModelSerial></failingManagedSystemNode><reportingConsoleNode><hostName>RH</hostName>"
           "</reportingConsoleNode>" +
           numbered({"problemNumber", "callHomeEnabled", "problemManagementHardwareRecord", "ApprovalState",
                     "referenceCode", "referenceCodeExtension", "systemReferenceCode", "problemState", "firmwareFix",
                     "firstReportedTimestamp", "lastReportedTimestamp", "primaryTimestamp", "shortDescription",
                     "eventSeverity", "notificationType", "duplicateCount"}) +
           "</s:ServiceableEvent></content></entry><entry><content><ServiceableEvent/></content></entry></feed>";
}

template <typename... Each>
Texts texts(Each... each)
{
    return {std::move(each)...};
}

Texts textsOf(const ConsoleInformation& of)
{
    return texts(of.name(), of.buildLevel(), of.identity().serialNumber(), of.identity().machineType(),
                 of.identity().model());
}

Texts textsOf(const ManagedSystem& of)
{
    return texts(of.name(), of.state(), of.primaryIPAddress(), of.attentionLEDState(), of.availableProcessingUnits(),
                 of.availableMemory(), of.referenceCode(), of.identifier(), of.identity().machineType());
}

Texts textsOf(const Partition& of)
{
    return texts(of.name(), of.identifier(), of.kind(), of.state(), of.referenceCode(), of.systemNameLink());
}

Texts textsOf(const ServiceableEvent& of)
{
    return texts(of.problemNumber(), of.callHomeEnabled(), of.hardwareRecord(), of.approvalState(), of.referenceCode(),
                 of.referenceCodeExtension(), of.systemReferenceCode(), of.problemState(), of.firmwareFix(),
                 of.firstReported(), of.lastReported(), of.primaryTimestamp(), of.shortDescription(), of.severity(),
                 of.notificationType(), of.duplicateCount(), of.reportingConsole().hostName(),
                 of.reportingConsole().model(), of.failingSystem().model(), of.analyzingConsole().hostName(),
                 of.analyzingConsole().model());
}

Texts textsOf(const FieldReplaceableUnit& of)
{
    return texts(of.partNumber(), of.unitClass(), of.unitDescription(), of.locationCode(), of.previouslyReplaced(),
                 of.replacedTimestamp(), of.replacementGroup());
}

using HandWrittenFeedTest = ConsoleTest;

TEST_F(HandWrittenFeedTest, ReadAsTheirRecordsWhateverTheirShape)
{
    const std::pair<std::string_view, std::string> feeds[] = {{ObjectType::ManagementConsole, consoleFeed},
                                                              {ObjectType::ManagedSystem, systemFeed},
                                                              {ObjectType::LogicalPartition, partitionFeed},
                                                              {ObjectType::VirtualIOServer, serverFeed},
                                                              {ObjectType::ServiceableEvent, eventFeed()}};
    for (const auto& [type, feed] : feeds) {
        simulator.setFeed(0, type, feed);
    }
    ASSERT_TRUE(settled(fetchInventory(corvel)).ok());
    EXPECT_EQ(corvel->numMSErrors, 2);
    EXPECT_EQ(corvel->numMSLEDs, 1);

    const Feed consoles = feedOfType(*corvel, ObjectType::ManagementConsole);
    EXPECT_EQ(consoles.published(), "2015-03-01T10:00:00.000Z");
    EXPECT_EQ(consoles.entryCount(), 2U);
    const ConsoleInformation console = ConsoleInformation::of(consoles);
    EXPECT_EQ(textsOf(console), (Texts{"Ridge & <Way>", "", "SN", none, "M&M"}));
    EXPECT_EQ(console.version(), "V1R2.3.4.5.6");
    EXPECT_FALSE(ConsoleInformation::of(Feed::notAvailable()));
    EXPECT_EQ(ConsoleInformation().version(), "V(null)R(null).(null).(null).(null)");

    const Feed ofSystems = feedOfType(*corvel, ObjectType::ManagedSystem);
    const auto systems = recordsOf<ManagedSystem>(ofSystems);
    ASSERT_EQ(systems.size(), 3U);
    EXPECT_EQ(textsOf(systems[0]),
              (Texts{" two  words ", "error - terminated", "fd00::1", "true", "\nPU", "MEM", "RC", "ID", "MT"}));
    EXPECT_EQ(systems[1].state(), "\nerror") << "blanks belong to a text";
    EXPECT_THAT(textsOf(systems[2]), Each(none));
    Texts identifiers;
    for (std::size_t place = 0; place < 6; ++place) {
        identifiers.push_back(ManagedSystem::identifierAt(ofSystems, place));
    }
    EXPECT_THAT(identifiers, ElementsAre(none, none, "ID", "beside", none, none));

    const auto partitions = recordsOf<LogicalPartition>(feedOfType(*corvel, ObjectType::LogicalPartition));
    ASSERT_EQ(partitions.size(), 1U);
    EXPECT_EQ(textsOf(partitions[0]), (Texts{"Köln", "7", "PT", "running", "RC", "https://c/s?a&b/quick/SystemName"}));
    const auto servers = recordsOf<VirtualIOServer>(feedOfType(*corvel, ObjectType::VirtualIOServer));
    ASSERT_EQ(servers.size(), 1U);
    EXPECT_EQ(textsOf(servers[0]), (Texts{"VN", none, none, none, none, "(null)/quick/SystemName"}));

    const auto events = recordsOf<ServiceableEvent>(feedOfType(*corvel, ObjectType::ServiceableEvent));
    ASSERT_EQ(events.size(), 2U);
    EXPECT_EQ(textsOf(events[0]), (Texts{"1",  "2",  "3",  "4",  "5",  "6",  "7",  "8",  "9",  "10", "11",
                                         "12", "13", "14", "15", "16", "RH", none, "FM", "AH", "AM"}));
    EXPECT_THAT(textsOf(events[1]), Each(none));
    ASSERT_THAT(events[0].units(), SizeIs(2));
    EXPECT_EQ(textsOf(events[0].units()[0]), (Texts{"1", "2", "3", "4", "5", "6", "7"}));
    EXPECT_THAT(textsOf(events[0].units()[1]), Each(none));
    EXPECT_THAT(events[1].units(), SizeIs(0));
    EXPECT_EQ(events[0].title() + events[1].title(), "4 (#1) (#)");
}

} // namespace
} // namespace lodestar::test
