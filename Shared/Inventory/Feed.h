// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "XML/XMLElement.h"

#include <array>
#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lodestar
{

class Corvel;

/// The types of objects in a console's inventory, which are also the keys of a feed dictionary.
namespace ObjectType
{
inline constexpr std::string_view ManagementConsole = "ManagementConsole";
inline constexpr std::string_view ManagedSystem = "ManagedSystem";
inline constexpr std::string_view VirtualIOServer = "VirtualIOServer";
inline constexpr std::string_view LogicalPartition = "LogicalPartition";
inline constexpr std::string_view ServiceableEvent = "ServiceableEvent";
inline constexpr std::string_view Group = "Group";
} // namespace ObjectType

/// A feed that consoles serve, and the schema under which they serve it.
struct FeedKind {
    std::string_view type;
    std::string_view schema;
};
inline constexpr std::array<FeedKind, 6> feedTable = {{
    {ObjectType::ManagementConsole, "uom"},
    {ObjectType::ManagedSystem, "uom"},
    {ObjectType::VirtualIOServer, "uom"},
    {ObjectType::LogicalPartition, "uom"},
    {ObjectType::ServiceableEvent, "sem"},
    {ObjectType::Group, "uom"},
}};
/// The schema of a type in the table; empty for any other type.
std::string_view schemaOf(std::string_view type);

/// One feed of a console: a parsed root, or the marker "NA" for a feed that could not be had. Both are one type, so
/// that no reader can forget to ask which it is. A root that does not exist is a feed without entries, which is not
/// "NA". A cheap value; any thread may read it.
class Feed
{
public:
    /// Makes the marker "NA".
    Feed() = default;
    explicit Feed(XMLElement root) : m_available(true), m_root(std::move(root)) {}
    static Feed notAvailable() { return {}; }

    bool isNA() const { return !m_available; }
    /// Does not exist when the feed is "NA".
    const XMLElement& root() const { return m_root; }
    /// The entries in the console's order; none when the feed is "NA".
    std::vector<XMLElement> entries() const { return m_root.children("entry"); }
    std::size_t entryCount() const { return m_root.childCount("entry"); }
    /// When the console made the feed: the first entry's text, which `parseFeedDate` reads. None without such a text.
    std::optional<std::string> published() const { return m_root.path({"entry", "published"}).text(); }
    /// The address in the first entry's link; none when the entry, the link or the address is missing.
    std::optional<std::string> firstLink() const { return m_root.path({"entry", "link"}).attribute("href"); }
    /// Bytes that the parsed feed takes; 0 when the feed is "NA".
    std::size_t memory() const { return m_root.documentMemory(); }

private:
    bool m_available = false;
    XMLElement m_root;
};

/// The object of the type in a feed's entry; no element when the entry holds another type.
inline XMLElement contentOf(const XMLElement& entry, std::string_view type)
{
    return entry.path({"content", type});
}

/// The feeds of one console by object type. A value. Once a record holds it, any thread may read it and nothing changes
/// it.
class FeedDictionary
{
public:
    void setFeed(std::string_view type, Feed feed) { m_feeds.insert_or_assign(std::string(type), std::move(feed)); }
    /// An empty feed, not "NA", when the dictionary lacks the type.
    Feed feed(std::string_view type) const;
    std::size_t size() const { return m_feeds.size(); }
    /// Bytes that the parsed feeds take.
    std::size_t memory() const;

private:
    std::map<std::string, Feed, std::less<>> m_feeds;
};

/// The record's feed of the type. For a record without feeds this is an empty feed, which is not "NA".
Feed feedOfType(const Corvel& corvel, std::string_view type);
/// Replaces the record's feed of the type and keeps the others. Main thread.
void setFeedOfType(Corvel& corvel, std::string_view type, Feed feed);

} // namespace lodestar
