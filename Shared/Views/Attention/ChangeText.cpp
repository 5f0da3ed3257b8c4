// SPDX-License-Identifier: Apache-2.0
#include "Views/Attention/ChangeText.h"

#include "Inventory/Feed.h"
#include "Views/Common/AgeText.h"
#include "Views/Common/CellText.h"
#include "Views/Common/DayBarsOutlet.h"
#include "Views/Common/FeedName.h"
#include "Views/Common/FeedTimeStamp.h"

#include <QCoreApplication>

#include <algorithm>

namespace lodestar
{
namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(lodestar::ChangeText)
};

QString isolatedText(const std::string& text)
{
    return isolated(rowText(text));
}

/// An event's title says its number and what became of it, its sentence what it is about.
bool isOfEvent(const Change& change)
{
    return change.kind == ChangeKind::EventOpened || change.kind == ChangeKind::EventGone;
}

QString nameOf(const Change& change)
{
    // Digits keep their way by themselves, and the typeface lacks the isolates' controls.
    const bool digits = std::ranges::all_of(change.name, [](char each) { return each >= '0' && each <= '9'; });
    const QString number = digits ? rowText(change.name) : isolatedText(change.name);
    switch (change.kind) {
    case ChangeKind::EventOpened:
        return Words::tr("#%1 opened").arg(number);
    case ChangeKind::EventGone:
        return Words::tr("#%1 gone").arg(number);
    default:
        break;
    }
    if (change.object.type == ObjectType::ServiceableEvent && !isOfConsole(change)) {
        return Words::tr("#%1").arg(number);
    }
    return rowText(isOfConsole(change) ? change.console : change.name);
}

/// The arrow keeps its way in every language: what was stands at its blunt end. Nothing is isolated where that would
/// change nothing, as with `isolated` itself.
QString stateChange(const Change& change)
{
    constexpr char16_t leftToRightIsolate = u'\u2066';
    constexpr char16_t popIsolate = u'\u2069';
    const QString before = isolatedText(change.from);
    const QString after = isolatedText(change.to);
    const QString line = before + QStringLiteral(" → ") + after;
    const bool needed = before.endsWith(QChar(popIsolate)) || after.endsWith(QChar(popIsolate));
    return needed ? leftToRightIsolate + line + popIsolate : line;
}

QString sentenceOf(const Change& change)
{
    switch (change.kind) {
    case ChangeKind::State:
        return stateChange(change);
    case ChangeKind::LEDOn:
        return Words::tr("LED on");
    case ChangeKind::LEDOff:
        return Words::tr("LED off");
    case ChangeKind::EventOpened:
    case ChangeKind::EventGone:
        return isolatedText(change.to.empty() ? change.from : change.to);
    case ChangeKind::Offline:
        return Words::tr("Offline");
    case ChangeKind::OnlineAgain:
        return Words::tr("Online again after %1").arg(ChangeText::duration(change.lasted));
    case ChangeKind::FeedMissing:
        return Words::tr("%1 not read").arg(feedNameAtStart(change.object.type));
    case ChangeKind::FeedReadAgain:
        return Words::tr("%1 read again").arg(feedNameAtStart(change.object.type));
    case ChangeKind::ObjectNew:
        return Words::tr("New");
    case ChangeKind::ObjectGone:
        return Words::tr("Gone");
    case ChangeKind::CertificateChanged:
        return Words::tr("Certificate changed");
    }
    return {};
}

QString spokenSentence(const Change& change)
{
    //: A state before and after.
    return change.kind == ChangeKind::State
               ? Words::tr("from %1 to %2").arg(isolatedText(change.from), isolatedText(change.to))
               : sentenceOf(change);
}

QString senseOf(const Change& change)
{
    switch (change.sense) {
    case ChangeSense::Worse:
        return Words::tr("worse");
    case ChangeSense::Better:
        return Words::tr("better");
    case ChangeSense::Neutral:
        break;
    }
    return {};
}

/// Rows are folded from five on, so that the words need no singular.
QString countOf(const Change& change, int count)
{
    if (isOfConsole(change)) {
        return Words::tr("%Ln consoles", nullptr, count);
    }
    switch (change.kind) {
    case ChangeKind::EventOpened:
        return Words::tr("%Ln events opened", nullptr, count);
    case ChangeKind::EventGone:
        return Words::tr("%Ln events gone", nullptr, count);
    default:
        break;
    }
    const std::string& type = change.object.type;
    return type == ObjectType::ManagedSystem      ? Words::tr("%Ln systems", nullptr, count)
           : type == ObjectType::VirtualIOServer  ? Words::tr("%Ln IO servers", nullptr, count)
           : type == ObjectType::Group            ? Words::tr("%Ln groups", nullptr, count)
           : type == ObjectType::ServiceableEvent ? Words::tr("%Ln events", nullptr, count)
                                                  : Words::tr("%Ln partitions", nullptr, count);
}

} // namespace

QString ChangeText::duration(std::chrono::seconds lasted)
{
    using std::chrono::minutes;
    const int count = std::max(1, static_cast<int>(std::chrono::round<minutes>(lasted).count()));
    constexpr int hour = 60;
    constexpr int day = 24 * hour;
    if (count < hour) {
        return Words::tr("%Ln min", nullptr, count);
    }
    if (count >= 2 * day) {
        return Words::tr("%Ln days", nullptr, count / day);
    }
    const QString hours = Words::tr("%Ln h", nullptr, count / hour);
    //: Hours and minutes.
    return count % hour == 0 ? hours : Words::tr("%1 %2").arg(hours, Words::tr("%Ln min", nullptr, count % hour));
}

QString ChangeText::dayTitle(std::chrono::local_days day, std::chrono::local_days today)
{
    if (day == today) {
        return Words::tr("Today");
    }
    if (day == today - std::chrono::days(1)) {
        return Words::tr("Yesterday");
    }
    const QDate date = dateOf(day);
    return date.year() == dateOf(today).year() ? dayAndMonth(date) : mediumDate(date);
}

FindingCell ChangeText::cellOf(const std::vector<Change>& changes, const ChangeRow& row, bool leadsOn)
{
    const Change& first = changes[row.changes.front()];
    // Events of different texts share a row, which then says only how many there are.
    const bool sameWords = std::ranges::all_of(row.changes, [&](std::uint32_t each) {
        return !isOfEvent(first) || sentenceOf(changes[each]) == sentenceOf(first);
    });
    FindingCell cell;
    cell.name = row.isFolded() ? countOf(first, static_cast<int>(row.changes.size())) : nameOf(first);
    cell.sentence = sameWords ? sentenceOf(first) : QString();
    cell.quotes = isOfEvent(first);
    cell.age = AgeText::clock(first.seen);
    cell.console = isOfConsole(first) ? QString() : rowText(first.console);
    cell.leadsOn = leadsOn;
    if (first.sense != ChangeSense::Neutral) {
        const bool worse = first.sense == ChangeSense::Worse;
        cell.badge = worse ? QStringLiteral("at_worse") : QStringLiteral("at_better");
        cell.badgeState = worse ? Role::State::Alert : Role::State::Good;
    }
    cell.accessibleText =
        spoken({cell.name, senseOf(first), sameWords ? spokenSentence(first) : QString(), cell.console, cell.age});
    return cell;
}

} // namespace lodestar
