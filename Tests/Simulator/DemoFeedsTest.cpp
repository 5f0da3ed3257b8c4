// SPDX-License-Identifier: Apache-2.0
#include "Simulator/FeedWriter.h"
#include "Tests/Simulator/XmlTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

namespace lodestar::simulator::test
{
namespace
{

using testing::AllOf;
using testing::Ge;
using testing::IsSupersetOf;
using testing::Le;
using testing::SizeIs;

using Path = std::vector<std::string_view>;

std::string contents(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

XmlTree demo(const std::string& type)
{
    return XmlTree(contents(std::filesystem::path(LODESTAR_DEMO_FOLDER) / (type + ".xml")));
}

std::vector<std::string> values(const std::string& type, const Path& below)
{
    Path path = {"entry", "content", type};
    path.insert(path.end(), below.begin(), below.end());
    return demo(type).texts(path);
}

std::set<std::string> distinct(const std::vector<std::string>& texts)
{
    return {texts.begin(), texts.end()};
}

TEST(DemoFeeds, ShowEveryLookInFewClearSlices)
{
    const auto states = values("ManagedSystem", {"State"});
    const auto lamps = values("ManagedSystem", {"PhysicalSystemAttentionLEDState"});
    ASSERT_EQ(states.size(), lamps.size());
    std::set<std::pair<bool, bool>> badges;
    for (std::size_t i = 0; i < states.size(); ++i) {
        badges.emplace(states[i] == "error" || states[i] == "incomplete", lamps[i] == "true");
    }
    EXPECT_THAT(badges, SizeIs(4));
    EXPECT_THAT(distinct(states), AllOf(SizeIs(AllOf(Ge(4U), Le(6U))), IsSupersetOf({"operating", "error"})));
    EXPECT_THAT(distinct(values("LogicalPartition", {"PartitionState"})),
                AllOf(SizeIs(AllOf(Ge(4U), Le(6U))),
                      IsSupersetOf({"running", "not activated", "error", "starting", "shutting down"})));
    EXPECT_THAT(distinct(values("VirtualIOServer", {"PartitionState"})),
                IsSupersetOf({"running", "not activated", "error", "shutting down"}));
    EXPECT_THAT(distinct(values("Group", {"GroupColor"})),
                IsSupersetOf({"Cyan", "Green", "Red", "Purple", "Blue", "Grey", "Yellow", "Orange", "Pink"}));
    EXPECT_LT(values("ManagedSystem", {"ReferenceCode"}).size(), states.size()) << "one system reports no code";
}

TEST(DemoFeeds, LinksLeadToWhatIsThere)
{
    std::set<std::string> known;
    for (const std::string_view type : feedTypes) {
        const XmlTree tree = demo(std::string(type));
        for (xmlNode* link : tree.all({"entry", "link"})) {
            known.insert(XmlTree::attribute(link, "href"));
        }
    }
    std::vector<std::pair<std::string, Path>> linking = {
        {"LogicalPartition", {"entry", "content", "LogicalPartition", "AssociatedManagedSystem"}},
        {"VirtualIOServer", {"entry", "content", "VirtualIOServer", "AssociatedManagedSystem"}}};
    for (const std::string_view list :
         {"AssociatedLogicalPartitions", "AssociatedVirtualIOServers", "AssociatedManagedSystems"}) {
        linking.emplace_back("Group", Path{"entry", "content", "Group", list, "link"});
    }
    for (const auto& [type, path] : linking) {
        const XmlTree tree = demo(type);
        const auto nodes = tree.all(path);
        EXPECT_FALSE(nodes.empty()) << path.back();
        for (xmlNode* node : nodes) {
            EXPECT_TRUE(known.contains(XmlTree::attribute(node, "href"))) << path.back();
        }
    }
    const auto systems = distinct(values("ManagedSystem", {"SystemName"}));
    const XmlTree events = demo("ServiceableEvent");
    for (xmlNode* node : events.all({"entry", "content", "ServiceableEvent"})) {
        for (xmlNode* host : XmlTree::all(node, {"failingManagedSystemNode", "hostName"})) {
            EXPECT_TRUE(systems.contains(XmlTree::text(host)));
        }
    }
}

} // namespace
} // namespace lodestar::simulator::test
