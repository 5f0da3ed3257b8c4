// SPDX-License-Identifier: Apache-2.0
#include "Views/Attention/FindingRows.h"

#include "Fleet/History.h"
#include "Fleet/Registry.h"
#include "Kit/Core/Toasts.h"
#include "Views/Attention/FindingText.h"
#include "Views/Attention/ObjectScenes.h"
#include "Views/Common/AgeText.h"
#include "Views/Common/RowKey.h"
#include "Views/Common/Scenes.h"
#include "Views/ResourceGroups/RGListCell.h"

#include <QCoreApplication>

namespace lodestar
{
namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(lodestar::FindingRows)
};

struct Badge {
    QString imageName;
    Role::State state = Role::State::None;
};

Badge badgeOf(const Finding& finding)
{
    switch (finding.rank) {
    case FindingRank::SystemErrorLit:
        return {QStringLiteral("ms_botherror")};
    case FindingRank::SystemError:
    case FindingRank::IOServerError:
    case FindingRank::PartitionError:
        return {QStringLiteral("ms_stateerror")};
    case FindingRank::ConsoleOffline:
        return {QStringLiteral("at_offline"), Role::State::Offline};
    case FindingRank::FeedsMissing:
        return {QStringLiteral("at_incomplete"), Role::State::Alert};
    case FindingRank::Stopped:
        return {QStringLiteral("at_stopped"), Role::State::Alert};
    case FindingRank::LEDLit:
        return {QStringLiteral("ms_lederror")};
    case FindingRank::GroupError: {
        RGListCell cell;
        cell.setGroupColor(finding.groupColor);
        return {cell.groupTag.imageName};
    }
    case FindingRank::OpenEvent:
        return {QStringLiteral("at_event")};
    }
    return {};
}

} // namespace

FindingCell cellOf(const Findings& findings, const FindingRow& row, ConsoleShown console, WallTime now)
{
    const Finding& first = findings.list[row.findings.front()];
    Badge badge = badgeOf(first);
    FindingCell cell;
    cell.badge = std::move(badge.imageName);
    cell.badgeState = badge.state;
    cell.name = FindingText::name(findings, row);
    cell.namedByText = first.subject == FindingSubject::Event;
    cell.sentence = FindingText::sentence(findings, row, now);
    cell.age = first.since ? AgeText::atRowEnd(first.since->time, now) : QString();
    if (console == ConsoleShown::Yes) {
        cell.console = FindingText::console(findings, row);
    }
    cell.accessibleText = FindingText::spoken(findings, row, now);
    if (first.rank == FindingRank::Stopped) {
        cell.rightButtons = {{Words::tr("Expected"), Role::Button::Standard}};
    }
    return cell;
}

std::size_t keyOf(const Finding& finding)
{
    return rowKey(finding.rank, finding.corvel.get(), finding.object.type, finding.object.identifier);
}

std::size_t keyOf(const Findings& findings, const FindingRow& row)
{
    const std::size_t key = keyOf(findings.list[row.findings.front()]);
    return row.isFolded() ? rowKey(key, 1) : key;
}

void openFinding(const ViewController& from, const Finding& finding)
{
    if (!isRegistered(finding.corvel)) {
        return;
    }
    if (finding.subject == FindingSubject::Console) {
        openScene(from, Scenes::connectionView, finding.corvel);
    } else {
        openObject(from, finding.corvel, finding.object.type, finding.element);
    }
}

void expectStops(const Findings& findings, const FindingRow& row)
{
    if (findings.list[row.findings.front()].rank != FindingRank::Stopped) {
        return;
    }
    for (const std::uint32_t each : row.findings) {
        const Finding& finding = findings.list[each];
        History::shared().expectStop(finding.corvel->address().value_or(""), finding.object);
    }
    Toasts::shared().show(Words::tr("Marked as expected until it runs again"));
}

} // namespace lodestar
