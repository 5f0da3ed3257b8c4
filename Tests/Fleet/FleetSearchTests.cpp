// SPDX-License-Identifier: Apache-2.0
#include "Fleet/FleetSearch.h"
#include "Inventory/FoldedText.h"
#include "Simulator/FeedWriter.h"
#include "Tests/Fleet/HandMadeConsole.h"

#include <gmock/gmock.h>
#include <libxml/parser.h>
#include <libxml/xpath.h>

#include <set>

namespace lodestar
{
namespace
{

using test::HandMadeConsole;
using testing::ElementsAre;
using testing::IsEmpty;

std::string field(const std::string& name, const std::string& text)
{
    return HandMadeConsole::field(name, text);
}

/// "type:identifier" of what was found, in its order; "console:name" for a console.
std::vector<std::string> namesOf(const FleetSearch& search, const FoundObjects& found)
{
    std::vector<std::string> names;
    for (std::size_t kind = 0; kind < found.size(); ++kind) {
        for (const FoundObject& each : found.at(kind)) {
            const XMLElement element = search.searchedOf(each).elementOf(each.object);
            names.push_back(kind == consoleKind
                                ? "console:" + search.consoleOf(each).name
                                : std::string(searchedKinds.at(kind)) + ":" +
                                      element.path({"Metadata", "Atom", "AtomID"}).text().value_or("?"));
        }
    }
    return names;
}

std::vector<std::string> find(const FleetSearch& search, std::string_view text)
{
    return namesOf(search, search.find(text));
}

std::string marked(std::string text, std::string_view wanted)
{
    const auto part = firstFoldedMatch(text, foldedText(wanted));
    return part ? text.insert(part->start + part->length, "]").insert(part->start, "[") : text;
}

TEST(FoldedTextTests, CaseAndDiacriticsDoNotMatterAndWholeLettersAreMarked)
{
    EXPECT_EQ(foldedText("Zürich ŁÓDŹ Tromsø Straße İzmir Ελλάς"), "zurich lodz tromso strasse izmir ελλασ");
    EXPECT_EQ(foldedText("u\u0308ber\nall\x7F"), "uber all ") << "a mark of its own; control characters";
    EXPECT_EQ(foldedText("a\xFF\xC3"), "a\uFFFD\uFFFD") << "not UTF-8";

    EXPECT_EQ(marked("vios-ZU\u0308RICH-2b", "zürich"), "vios-[ZU\u0308RICH]-2b");
    EXPECT_EQ(marked("Straße 7", "ras"), "St[raß]e 7") << "no half letter";
    EXPECT_EQ(marked("cafe\u0301", "cafe"), "[cafe\u0301]");
    EXPECT_EQ(marked("caf\u00E9\u0301 au lait", "FE"), "ca[f\u00E9\u0301] au lait");
    EXPECT_EQ(marked("helios", "atlas"), "helios");
    EXPECT_EQ(marked("helios", ""), "helios");
}

TEST(FleetSearchTests, FindsEachKindByItsOwnTextsErrorsFirst)
{
    HandMadeConsole harbour("Harbour");
    harbour.addSystem("s1", "operating");
    harbour.add("ManagedSystem", "s2",
                field("SystemName", "Île-03") + field("State", "error") + field("PrimaryIPAddress", "192.0.2.63") +
                    field("ReferenceCode", "X417-2208") +
                    "<MachineTypeModelAndSerialNumber><MachineType>4210</MachineType><Model>M16</Model>"
                    "<SerialNumber>06A17C2</SerialNumber></MachineTypeModelAndSerialNumber>");
    harbour.addPartition("LogicalPartition", "p1", "running", "s1");
    harbour.addPartition("LogicalPartition", "p2", "error", "s2", "X417-2208");
    harbour.add("Group", "g1", field("GroupName", "Calm"));
    harbour.add("Group", "g2",
                field("GroupName", "Île group") +
                    "<AssociatedLogicalPartitions><link href='https://c/rest/api/uom/LogicalPartition/p2'/>"
                    "</AssociatedLogicalPartitions>");
    harbour.add("Other", "x", field("SystemName", "Île-04"), "ManagedSystem");
    harbour.addEvent("1042", "Closed", test::now);
    harbour.addEvent("1043", "Open", test::now,
                     field("referenceCode", "X417-2208") +
                         "<failingManagedSystemNode><managedTypeModelSerial><SerialNumber>06A1999</SerialNumber>"
                         "</managedTypeModelSerial></failingManagedSystemNode>"
                         "<fieldReplaceableUnits><FieldReplaceableUnit><partNumber>00FV7A9</partNumber>"
                         "<locationCode>U4210.M16-P1-C4</locationCode></FieldReplaceableUnit>"
                         "<FieldReplaceableUnit><partNumber>00FV7B0</partNumber></FieldReplaceableUnit>"
                         "</fieldReplaceableUnits>");
    harbour.reading.address = "192.0.2.7";
    const FleetSearch search({harbour.snapshot()}, nullptr);

    EXPECT_THAT(find(search, " ILE "), ElementsAre("ManagedSystem:s2", "Group:g2")) << "not an object out of place";
    EXPECT_THAT(find(search, "name of"), ElementsAre("ManagedSystem:s1", "LogicalPartition:p2", "LogicalPartition:p1",
                                                     "ServiceableEvent:1043", "ServiceableEvent:1042"));
    EXPECT_THAT(find(search, "x417-2208"),
                ElementsAre("ManagedSystem:s2", "LogicalPartition:p2", "ServiceableEvent:1043"));
    EXPECT_THAT(find(search, "4210-m16"), ElementsAre("ManagedSystem:s2"));
    EXPECT_THAT(find(search, "06a17"), ElementsAre("ManagedSystem:s2"));
    EXPECT_THAT(find(search, "06a1999"), ElementsAre("ServiceableEvent:1043"));
    EXPECT_THAT(find(search, "192.0.2."), ElementsAre("ManagedSystem:s2", "console:Harbour"));
    EXPECT_THAT(find(search, "harbour.example"), ElementsAre("console:Harbour"));
    EXPECT_THAT(find(search, "#1042"), ElementsAre("ServiceableEvent:1042"));
    EXPECT_THAT(find(search, "fv7b"), ElementsAre("ServiceableEvent:1043"));
    EXPECT_THAT(find(search, "p1-c4"), ElementsAre("ServiceableEvent:1043"));
    EXPECT_THAT(find(search, "error"), ElementsAre("ManagedSystem:s2", "LogicalPartition:p2"));
    EXPECT_THAT(find(search, "06A17C2\n192"), IsEmpty()) << "two texts are not one";
    EXPECT_THAT(find(search, "  "), IsEmpty());
    EXPECT_EQ(search.objects(), 9U);
}

TEST(FleetSearchTests, FollowsItsConsoles)
{
    HandMadeConsole harbour("Harbour");
    harbour.addSystem("s1", "operating");
    HandMadeConsole meadow("Meadow");
    meadow.addSystem("s2", "operating");
    meadow.failFeed("LogicalPartition");
    const ConsoleSnapshot harbourBefore = harbour.snapshot();
    const FleetSearch first({harbourBefore, meadow.snapshot()}, nullptr);
    EXPECT_THAT(find(first, "operating"), ElementsAre("ManagedSystem:s1", "ManagedSystem:s2"));
    EXPECT_THAT(first.without("LogicalPartition"), ElementsAre(1));
    EXPECT_EQ(first.consolesRead(), 2U);

    // Harbour is as it was but for its place; Meadow is offline; a console comes.
    meadow.reading.outcome = Reading::Outcome::Offline;
    HandMadeConsole uplands("Uplands");
    uplands.addSystem("s3", "operating");
    uplands.reading.outcome = Reading::Outcome::NotTried;
    const FleetSearch second({uplands.snapshot(), harbourBefore, meadow.snapshot()}, &first);
    EXPECT_EQ(&second.searched(1), &first.searched(0)) << "is not made again";
    EXPECT_THAT(find(second, "operating"), ElementsAre("ManagedSystem:s1"));
    EXPECT_THAT(find(second, "example"), ElementsAre("console:Meadow", "console:Uplands", "console:Harbour"))
        << "one that does not answer is known by its name, and first";
    EXPECT_THAT(second.notRead(), ElementsAre(0, 2));
    EXPECT_THAT(second.without("LogicalPartition"), IsEmpty());
    EXPECT_EQ(second.objects(), 2U);

    // Read again, with another name; the others are deleted.
    harbour.entries.clear();
    harbour.addSystem("s4", "operating");
    ConsoleSnapshot renamed = harbour.snapshot();
    renamed.name = "Quay";
    const FleetSearch third({renamed}, &second);
    EXPECT_THAT(find(third, "operating"), ElementsAre("ManagedSystem:s4"));
    EXPECT_THAT(find(third, "quay"), ElementsAre("console:Quay"));
}

TEST(FleetSearchTests, LooksForTwoLettersInALargeFleet)
{
    HandMadeConsole console("Überlingen");
    const std::vector<ConsoleSnapshot> few(FleetSearch::largeFleet - 1, console.snapshot());
    const FleetSearch small(few, nullptr);
    EXPECT_EQ(countOf(small.find("Ü")), few.size());
    std::vector<ConsoleSnapshot> many = few;
    many.push_back(few.front());
    const FleetSearch large(many, &small);
    EXPECT_FALSE(large.looksFor(" Ü "));
    EXPECT_EQ(countOf(large.find("ü")), 0U);
    EXPECT_EQ(countOf(large.find("Üb")), many.size());
}

/// Finds objects in the bytes that a console sends, by an XPath query of libxml2.
class FeedQuery
{
public:
    explicit FeedQuery(const std::string& bytes)
        : m_document(xmlReadMemory(bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr, XML_PARSE_NONET)),
          m_context(xmlXPathNewContext(m_document))
    {
    }
    ~FeedQuery()
    {
        xmlXPathFreeContext(m_context);
        xmlFreeDoc(m_document);
    }
    FeedQuery(const FeedQuery&) = delete;
    FeedQuery& operator=(const FeedQuery&) = delete;

    /// Identifiers of the objects of which one of the fields, paths below the object, has the lower-case text.
    std::set<std::string> having(const std::vector<std::string>& fields, const std::string& text) const
    {
        std::string condition;
        for (const std::string& each : fields) {
            condition += (condition.empty() ? "" : " or ") + each + "[contains(translate(., " +
                         "'ABCDEFGHIJKLMNOPQRSTUVWXYZ', 'abcdefghijklmnopqrstuvwxyz'), \"" + text + "\")]";
        }
        const std::string query = "//*[local-name()='entry']/*[local-name()='content']/*[" + condition +
                                  "]/*[local-name()='Metadata']//*[local-name()='AtomID']";
        xmlXPathObject* const result =
            xmlXPathEvalExpression(reinterpret_cast<const xmlChar*>(query.c_str()), m_context);
        std::set<std::string> found;
        for (int i = 0; result->nodesetval != nullptr && i < result->nodesetval->nodeNr; ++i) {
            xmlChar* const content = xmlNodeGetContent(result->nodesetval->nodeTab[i]);
            found.insert(reinterpret_cast<const char*>(content));
            xmlFree(content);
        }
        xmlXPathFreeObject(result);
        return found;
    }

private:
    xmlDoc* m_document;
    xmlXPathContext* m_context;
};

std::string named(const std::string& name)
{
    return "*[local-name()='" + name + "']";
}

std::vector<std::string> fieldsOf(std::string_view type)
{
    if (type == ObjectType::ManagedSystem) {
        return {named("SystemName"), named("PrimaryIPAddress"), named("ReferenceCode"), named("State"),
                named("MachineTypeModelAndSerialNumber") + "/*"};
    }
    if (type == ObjectType::ServiceableEvent) {
        return {named("problemNumber"),
                named("shortDescription"),
                named("referenceCode"),
                named("referenceCodeExtension"),
                named("systemReferenceCode"),
                named("ApprovalState"),
                named("problemState"),
                named("failingManagedSystemNode") + "/" + named("hostName"),
                named("failingManagedSystemNode") + "/" + named("managedTypeModelSerial") + "/*",
                named("fieldReplaceableUnits") + "//" + named("partNumber"),
                named("fieldReplaceableUnits") + "//" + named("locationCode")};
    }
    return {named(type == ObjectType::Group ? "GroupName" : "PartitionName"), named("PartitionState"),
            named("ReferenceCode")};
}

TEST(FleetSearchTests, FindsWhatAnotherParserFindsInTheFeeds)
{
    simulator::Settings settings;
    settings.systems = 12;
    settings.partitions = 10;
    settings.vios = 8;
    settings.events = 40;
    settings.groups = 9;
    const simulator::Inventory inventory = simulator::makeInventory(settings, 7);
    auto feeds = std::make_shared<FeedDictionary>();
    std::map<std::string, std::string> bytes;
    for (const auto& [type, text] : simulator::writeFeeds(inventory, 0)) {
        bytes[type] = simulator::filled(text, {"127.0.0.2", "console", "1", "6918b61e-c645-7a0d-6417-d56c545c61a4"});
        feeds->setFeed(type, Feed(XMLElement::parse(bytes[type]).value()));
    }
    ConsoleSnapshot console = HandMadeConsole("console").snapshot();
    console.feeds = feeds;
    const FleetSearch search({console}, nullptr);
    ASSERT_EQ(search.objects(), 12U + 120 + 8 + 40 + 9 + 1) << "as many as the settings say";

    std::size_t found = 0;
    for (const std::string text :
         {"e", "0", "helios", "running", "not ", "error", "x41", "-2", "ps-1400", "10.", "4210", "pend", "open", "u",
          "fan", inventory.systems[3].name.c_str(), inventory.events[5].fields.front().second.c_str()}) {
        std::set<std::string> expected;
        std::set<std::string> actual;
        for (std::size_t kind = 0; kind < consoleKind; ++kind) {
            const std::string type(searchedKinds.at(kind));
            for (const std::string& each : FeedQuery(bytes[type]).having(fieldsOf(type), foldedText(text))) {
                expected.insert(type + ":" + each);
            }
        }
        for (const std::string& each : find(search, text)) {
            if (!each.starts_with("console:")) {
                actual.insert(each);
            }
        }
        EXPECT_EQ(actual, expected) << text;
        found += actual.size();
    }
    EXPECT_GT(found, 500U);
}

} // namespace
} // namespace lodestar
