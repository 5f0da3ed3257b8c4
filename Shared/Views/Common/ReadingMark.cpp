// SPDX-License-Identifier: Apache-2.0
#include "Views/Common/ReadingMark.h"

#include "Views/Common/AgeText.h"
#include "Views/Common/FeedName.h"

#include <QCoreApplication>

#include <algorithm>

namespace lodestar
{
namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(lodestar::ReadingMark)
};

ReadingMark ageMark(WallTime read, WallTime now)
{
    if (AgeText::isOld(read, now)) {
        const QString text = AgeText::readAgo(read, now);
        return {.text = text, .state = Role::State::Alert, .spoken = text};
    }
    return {.text = AgeText::atRowEnd(read, now), .spoken = AgeText::readAgo(read, now)};
}

ReadingMark missingMark(const std::vector<std::string_view>& missing)
{
    const int count = static_cast<int>(missing.size());
    //: %1 the name of a feed, as in "partitions"
    const QString text = count == 1 ? Words::tr("%1 missing").arg(feedName(missing.front()))
                                    //: %n of the six feeds
                                    : Words::tr("%Ln of 6 missing", nullptr, count);
    return {.text = text, .state = Role::State::Incomplete, .spoken = text};
}

ReadingMark offlineMark(const Reading& reading, WallTime now)
{
    if (!reading.offlineSince) {
        return {};
    }
    const QString since = AgeText::since({.time = *reading.offlineSince}, now);
    //: %1 as in "since 02:58"
    return {.text = since, .state = Role::State::Offline, .spoken = Words::tr("offline %1").arg(since)};
}

} // namespace

ReadingMark markOfConsole(const Reading& reading, WallTime now)
{
    if (reading.outcome == Reading::Outcome::NotTried) {
        return {};
    }
    if (reading.outcome == Reading::Outcome::Offline) {
        return offlineMark(reading, now);
    }
    if (const auto missing = reading.missingFeeds(); !missing.empty()) {
        return missingMark(missing);
    }
    return ageMark(reading.oldestFeed().value_or(reading.ended), now);
}

ReadingMark markOfFeed(const Reading& reading, std::string_view type, WallTime now)
{
    const auto* const feed = std::ranges::find(reading.feeds, type, &FeedReading::type);
    if (feed == reading.feeds.end()) {
        return {};
    }
    if (feed->error) {
        const QString text = feedsNotRead({type});
        return {.text = text, .state = Role::State::Incomplete, .spoken = text};
    }
    return feed->readAt ? ageMark(*feed->readAt, now) : ReadingMark();
}

} // namespace lodestar
