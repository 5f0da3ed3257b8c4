// SPDX-License-Identifier: Apache-2.0
#include "Inventory/Feed.h"

#include "Application/Model/Corvel.h"

#include <algorithm>

namespace lodestar
{

std::string_view schemaOf(std::string_view type)
{
    const auto* const row = std::ranges::find(feedTable, type, &FeedKind::type);
    return row != feedTable.end() ? row->schema : std::string_view();
}

std::size_t FeedDictionary::memory() const
{
    std::size_t bytes = 0;
    for (const auto& [type, feed] : m_feeds) {
        bytes += feed.memory();
    }
    return bytes;
}

Feed FeedDictionary::feed(std::string_view type) const
{
    const auto known = m_feeds.find(type);
    return known != m_feeds.end() ? known->second : Feed(XMLElement());
}

Feed feedOfType(const Corvel& corvel, std::string_view type)
{
    const auto feeds = corvel.restData();
    return feeds != nullptr ? feeds->feed(type) : Feed(XMLElement());
}

void setFeedOfType(Corvel& corvel, std::string_view type, Feed feed)
{
    // Changes a copy, in one step: other threads may read the present snapshot, and a fetch may replace it at any time.
    corvel.changeRestData([type, &feed](const std::shared_ptr<const FeedDictionary>& feeds) {
        auto changed = feeds != nullptr ? std::make_shared<FeedDictionary>(*feeds) : std::make_shared<FeedDictionary>();
        changed->setFeed(type, std::move(feed));
        return changed;
    });
}

} // namespace lodestar
