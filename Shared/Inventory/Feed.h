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

/// The object types of a console's inventory, which are also the keys of a feed dictionary.
namespace ObjectType
{
inline constexpr std::string_view ManagementConsole = "ManagementConsole";
inline constexpr std::string_view ManagedSystem = "ManagedSystem";
inline constexpr std::string_view VirtualIOServer = "VirtualIOServer";
inline constexpr std::string_view LogicalPartition = "LogicalPartition";
inline constexpr std::string_view ServiceableEvent = "ServiceableEvent";
inline constexpr std::string_view Group = "Group";
} // namespace ObjectType

/// What is asked of a console, and where: one row for each feed.
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
/// The schema under which consoles serve a type of the table; empty for any other type.
std::string_view schemaOf(std::string_view type);

/// One feed of a console: a parsed root, or the marker "NA" for a feed that could not be had. As one type, so that no
/// reader can forget to ask. A root that does not exist is a feed with no entries, which is not "NA". A cheap value, to
/// be read from any thread.
class Feed
{
public:
    /// "NA".
    Feed() = default;
    explicit Feed(XMLElement root) : m_available(true), m_root(std::move(root)) {}
    static Feed notAvailable() { return {}; }

    bool isNA() const { return !m_available; }
    /// No element when the feed is "NA".
    const XMLElement& root() const { return m_root; }
    /// In the console's order. None when the feed is "NA".
    std::vector<XMLElement> entries() const { return m_root.children("entry"); }
    std::size_t entryCount() const { return m_root.childCount("entry"); }
    /// When the console made the feed, as the first entry says and as `parseFeedDate` reads it; none without that.
    std::optional<std::string> published() const { return m_root.path({"entry", "published"}).text(); }
    /// The address that the first entry links to; none without an entry, a link or an address.
    std::optional<std::string> firstLink() const { return m_root.path({"entry", "link"}).attribute("href"); }
    /// Bytes that the parsed feed takes; 0 when the feed is "NA".
    std::size_t memory() const { return m_root.documentMemory(); }

private:
    bool m_available = false;
    XMLElement m_root;
};

/// What an entry of a feed holds of a type; no element when it holds something else.
inline XMLElement contentOf(const XMLElement& entry, std::string_view type)
{
    return entry.path({"content", type});
}

/// The feeds of one console by object type. A value. Once a record holds it, it is read from any thread and no longer
/// changed.
class FeedDictionary
{
public:
    void setFeed(std::string_view type, Feed feed) { m_feeds.insert_or_assign(std::string(type), std::move(feed)); }
    /// An empty feed, not "NA", for a type that is not there.
    Feed feed(std::string_view type) const;
    std::size_t size() const { return m_feeds.size(); }
    /// Bytes that the parsed feeds take.
    std::size_t memory() const;

private:
    std::map<std::string, Feed, std::less<>> m_feeds;
};

/// The record's feed of a type. A record without feeds answers an empty feed, which is not "NA".
Feed feedOfType(const Corvel& corvel, std::string_view type);
/// Puts one feed in the place of the record's feed of that type, the others kept. Main thread.
void setFeedOfType(Corvel& corvel, std::string_view type, Feed feed);

} // namespace lodestar
