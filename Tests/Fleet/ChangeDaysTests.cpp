// SPDX-License-Identifier: Apache-2.0
#include "Fleet/ChangeDays.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>

namespace lodestar
{
namespace
{

using namespace std::chrono;
using ::testing::ElementsAre;

/// Days of a zone three hours ahead, so that they are not those of the clock.
local_days zoneDay(WallTime time)
{
    return local_days(floor<days>(time + hours(3)).time_since_epoch());
}

Change change(WallTime seen, ChangeKind kind, const std::string& address, const std::string& name)
{
    Change each;
    each.seen = seen;
    each.kind = kind;
    each.sense = ChangeSense::Worse;
    each.address = each.console = address;
    each.name = name;
    each.object = {"LogicalPartition", name};
    return each;
}

std::vector<std::size_t> sizesOf(const std::vector<ChangeDay>& days)
{
    std::vector<std::size_t> sizes;
    for (const ChangeDay& day : days) {
        for (const ChangeRow& row : day.rows) {
            sizes.push_back(row.changes.size());
        }
    }
    return sizes;
}

/// Rows by day and sense, counted without the code under test: a change counts whole when few are like it, and as its
/// share of one row when many are.
std::map<std::pair<local_days, ChangeSense>, double> expectedRows(const std::vector<Change>& changes)
{
    std::map<std::pair<local_days, ChangeSense>, double> rows;
    for (const Change& each : changes) {
        const auto like = std::ranges::count_if(changes, [&](const Change& other) {
            return other.seen == each.seen && other.address == each.address && other.kind == each.kind &&
                   other.sense == each.sense && other.object.type == each.object.type &&
                   (each.kind != ChangeKind::State || (other.from == each.from && other.to == each.to));
        });
        rows[{zoneDay(each.seen), each.sense}] += like < 5 ? 1.0 : 1.0 / static_cast<double>(like);
    }
    return rows;
}

TEST(ChangeDaysTests, RowsAndBarsAgreeWithACountThatGroupsOtherwise)
{
    std::mt19937 random(20260312);
    const auto pick = [&random](auto... of) {
        const std::vector all{of...};
        return all[random() % all.size()];
    };
    const WallTime now = sys_days(2026y / March / 12) + hours(9);
    std::vector<Change> changes;
    for (int i = 0; i < 3000; ++i) {
        Change each = change(now - hours(random() % 900), pick(ChangeKind::State, ChangeKind::ObjectNew),
                             pick("a", "b"), std::to_string(i));
        each.sense = pick(ChangeSense::Worse, ChangeSense::Better, ChangeSense::Neutral);
        each.object.type = pick("LogicalPartition", "ManagedSystem");
        each.from = pick("running", "starting");
        each.to = pick("error", "off");
        each.lasted = minutes(random() % 100);
        // Some readings find much at once.
        for (std::size_t copies = random() % 8 == 0 ? random() % 9 : 0; copies > 0; --copies) {
            changes.push_back(each);
        }
        changes.push_back(std::move(each));
    }
    std::ranges::shuffle(changes, random);
    const auto expected = expectedRows(changes);

    const std::vector<ChangeDay> days = daysOf(changes, {}, zoneDay);
    std::vector<int> seen(changes.size());
    WallTime last = WallTime::max();
    for (const ChangeDay& day : days) {
        std::map<ChangeSense, int> rows;
        for (const ChangeRow& row : day.rows) {
            const Change& first = changes[row.changes.front()];
            EXPECT_LE(first.seen, last) << "newest first";
            last = first.seen;
            ++rows[first.sense];
            for (const std::uint32_t each : row.changes) {
                ++seen[each];
                EXPECT_EQ(zoneDay(changes[each].seen), day.date);
            }
        }
        for (const auto& [sense, count] : rows) {
            EXPECT_NEAR(count, expected.at({day.date, sense}), 1e-6);
        }
        EXPECT_EQ(day.worse, rows[ChangeSense::Worse]);
        EXPECT_EQ(day.better, rows[ChangeSense::Better]);
    }
    EXPECT_EQ(std::ranges::count(seen, 1), std::ssize(changes)) << "each change is in one row";
    const auto ofB = daysOf(changes, {"b"}, zoneDay);
    EXPECT_TRUE(std::ranges::all_of(ofB, [&](const ChangeDay& day) {
        return std::ranges::all_of(day.rows,
                                   [&](const ChangeRow& row) { return changes[row.changes.front()].address == "b"; });
    }));

    const local_days today = zoneDay(now);
    const auto counts = countsOf(days, today, 30);
    ASSERT_EQ(counts.size(), 30U);
    for (int ago = 0; ago < 30; ++ago) {
        const auto found = expected.find({today - std::chrono::days(ago), ChangeSense::Worse});
        EXPECT_NEAR(counts[static_cast<std::size_t>(29 - ago)].worse, found == expected.end() ? 0 : found->second,
                    1e-6);
    }
}

TEST(ChangeDaysTests, ConsolesOfOneRefreshShareARowThoughEachEndsByItself)
{
    const WallTime begin = sys_days(2026y / March / 12) + hours(3);
    std::vector<Change> changes;
    const auto lose = [&](int count, WallTime from, seconds apart) {
        for (int i = 0; i < count; ++i) {
            changes.push_back(change(from + i * apart, ChangeKind::Offline, std::to_string(changes.size()), ""));
        }
    };
    lose(8, begin, seconds(10));
    lose(4, begin + minutes(15), seconds(1));
    lose(6, begin + minutes(30), seconds(40)); // six refreshes of one console each
    EXPECT_THAT(sizesOf(daysOf(changes, {}, zoneDay)), ElementsAre(1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 8));

    // As long as "Online again after 25 min" is true of all; the time that something else lasted is not told.
    changes.clear();
    for (int i = 0; i < 10; ++i) {
        changes.push_back(change(begin, ChangeKind::OnlineAgain, std::to_string(i), ""));
        changes.back().lasted = minutes(i < 5 ? 25 : 40) + seconds(i);
        changes.push_back(change(begin, ChangeKind::State, "a", std::to_string(i)));
        changes.back().lasted = hours(i);
    }
    EXPECT_THAT(sizesOf(daysOf(changes, {}, zoneDay)), ElementsAre(5, 10, 5));
    // An event's text is its own; that it opened is what they share.
    changes.clear();
    for (int i = 0; i < 5; ++i) {
        changes.push_back(change(begin, ChangeKind::EventOpened, "a", std::to_string(i)));
        changes.back().to = "text " + std::to_string(i);
    }
    EXPECT_THAT(sizesOf(daysOf(changes, {}, zoneDay)), ElementsAre(5));
}

TEST(ChangeDaysTests, TheDifferenceSinceYesterdayIsWhatCameMinusWhatWent)
{
    const WallTime now = sys_days(2026y / March / 12) + hours(9);
    std::vector<Change> changes;
    const auto add = [&](ChangeKind kind, hours ago, const char* from, const char* to) {
        changes.push_back(change(now - ago, kind, "a", "p"));
        changes.back().from = from;
        changes.back().to = to;
    };
    add(ChangeKind::State, hours(30), "running", "error");
    add(ChangeKind::State, hours(20), "starting", "running");
    add(ChangeKind::State, hours(10), "running", "error");
    add(ChangeKind::ObjectNew, hours(5), "", "running");
    add(ChangeKind::ObjectNew, hours(4), "", "running");
    add(ChangeKind::ObjectGone, hours(3), "error", "");
    add(ChangeKind::EventOpened, hours(2), "", "running");
    changes.push_back(changes[1]);
    changes.back().object.type = "VirtualIOServer";
    const auto since = [&](const char* state) {
        return differenceSince(changes, "LogicalPartition", state, now - hours(24));
    };
    EXPECT_EQ(since("running"), 2);
    EXPECT_EQ(since("starting"), -1);
    EXPECT_EQ(since("error"), 0);
}

} // namespace
} // namespace lodestar
