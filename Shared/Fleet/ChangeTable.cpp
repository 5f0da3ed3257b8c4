// SPDX-License-Identifier: Apache-2.0
#include "Fleet/ChangeTable.h"

#include "Fleet/TableCells.h"

#include <string>

namespace lodestar
{
namespace
{

std::vector<std::string> cellsOf(const Change& change)
{
    return {
        change.console,
        change.address,
        utcCell(change.seen),
        // Before the first reading of all there is no other, and the time is zero.
        change.before > WallTime() ? utcCell(change.before) : "",
        std::string(wordOf(change.kind)),
        std::string(wordOf(change.sense)),
        change.object.type,
        change.name,
        change.from,
        change.to,
        change.kind == ChangeKind::OnlineAgain ? std::to_string(change.lasted.count()) : "",
        change.object.identifier,
    };
}

} // namespace

std::string_view wordOf(ChangeSense sense)
{
    switch (sense) {
    case ChangeSense::Worse:
        return "worse";
    case ChangeSense::Better:
        return "better";
    case ChangeSense::Neutral:
        break;
    }
    return "neutral";
}

std::string_view wordOf(ChangeKind kind)
{
    switch (kind) {
    case ChangeKind::State:
        return "state";
    case ChangeKind::LEDOn:
        return "led_on";
    case ChangeKind::LEDOff:
        return "led_off";
    case ChangeKind::EventOpened:
        return "event_opened";
    case ChangeKind::EventGone:
        return "event_gone";
    case ChangeKind::Offline:
        return "offline";
    case ChangeKind::OnlineAgain:
        return "online_again";
    case ChangeKind::FeedMissing:
        return "feed_missing";
    case ChangeKind::FeedReadAgain:
        return "feed_read_again";
    case ChangeKind::ObjectNew:
        return "new";
    case ChangeKind::ObjectGone:
        return "gone";
    case ChangeKind::CertificateChanged:
        break;
    }
    return "certificate_changed";
}

Table tableOfChanges(const std::vector<Change>& changes, const std::vector<std::uint32_t>& shown)
{
    Table table;
    table.titles = {"console", "address", "seen_utc", "before_utc", "change",         "sense",
                    "type",    "name",    "from",     "to",         "lasted_seconds", "id"};
    table.rows.reserve(shown.size());
    for (const std::uint32_t index : shown) {
        table.rows.push_back(cellsOf(changes[index]));
    }
    return table;
}

} // namespace lodestar
