// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "XML/XMLElement.h"

#include <map>
#include <string>
#include <string_view>

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

/// One feed of a console: a parsed root, or the marker "NA" for a feed that could not be had. As one type, so that no
/// reader can forget to ask. A root that does not exist is a feed with no entries, which is not "NA".
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
    std::vector<XMLElement> entries() const { return m_root.children("entry"); }
    std::size_t entryCount() const { return m_root.childCount("entry"); }

private:
    bool m_available = false;
    XMLElement m_root;
};

/// The feeds of one console by object type.
class FeedDictionary
{
public:
    void setFeed(std::string_view type, Feed feed) { m_feeds.insert_or_assign(std::string(type), std::move(feed)); }
    /// An empty feed, not "NA", for a type that is not there.
    Feed feed(std::string_view type) const;
    std::size_t size() const { return m_feeds.size(); }

private:
    std::map<std::string, Feed, std::less<>> m_feeds;
};

/// The record's feed of a type. A record without feeds answers an empty feed, which is not "NA".
Feed feedOfType(const Corvel& corvel, std::string_view type);
/// Puts one feed in the place of the record's feed of that type, the others kept. Main thread.
void setFeedOfType(Corvel& corvel, std::string_view type, Feed feed);

} // namespace lodestar
