// SPDX-License-Identifier: Apache-2.0
#include "Views/Attention/AttentionNowController.h"

#include "Controllers/REST/RESTHandler.h"
#include "Fleet/AttentionTable.h"
#include "Kit/Core/NavigationController.h"
#include "Platform/Queues/DispatchQueue.h"
#include "Platform/Queues/MainQueue.h"
#include "Views/Attention/FindingRows.h"
#include "Views/Attention/FindingText.h"
#include "Views/Attention/FoldedListController.h"
#include "Views/Common/AgeClock.h"
#include "Views/Common/AgeText.h"
#include "Views/Common/FeedName.h"

#include <QLocale>

#include <algorithm>
#include <utility>

namespace lodestar
{
namespace
{

/// The least height of a row, that of "Show all"; findings are higher.
constexpr double rowHeight = 44;
constexpr double separatorLeft = 10;
constexpr double separatorRight = 15;

/// So many findings are put into rows within a frame, so that a filter works at once. More are, elsewhere.
constexpr std::size_t mostAtOnce = 2000;

bool isComplete(const FleetReading& fleet)
{
    return fleet.answeredInFull == fleet.consoles;
}

bool isOld(const FleetReading& fleet)
{
    return fleet.from && AgeText::isOld(*fleet.from, AgeClock::now());
}

void show(LabelOutlet& label, const QString& text)
{
    label.setText(text);
    label.setHidden(text.isEmpty());
}

} // namespace

AttentionNowController::AttentionNowController()
    : m_picture(Attention::shared().picture()), m_tableView(*this, TableKind::Main)
{
    m_tableView.setRowHeight(rowHeight);
    m_tableView.setSeparatorInset(separatorLeft, separatorRight);
    for (LabelOutlet* label : {&m_summaryLabel, &m_completenessLabel, &m_filterLabel, &m_notShownLabel}) {
        label->setHidden(true);
    }
    m_completenessMark.setHidden(true);
    showNothing();
}

void AttentionNowController::viewDidLoad()
{
    m_observation = NotificationCenter::defaultCenter().addObserver("AttentionDidChange", [this] {
        announceNewErrors();
        follow();
    });
}

void AttentionNowController::viewDidAppear()
{
    m_clock = connect(&AgeClock::shared(), &AgeClock::ticked, this, &AttentionNowController::follow);
    follow();
}

void AttentionNowController::viewDidDisappear()
{
    disconnect(m_clock);
}

void AttentionNowController::filterDidChange()
{
    if (isInWindow()) {
        rebuild(m_picture);
    }
}

void AttentionNowController::follow()
{
    m_tableView.whenUntouched([this] {
        if (isInWindow()) { // Else it follows when it appears.
            rebuild(Attention::shared().picture());
        }
    });
}

void AttentionNowController::rebuild(const std::shared_ptr<const Attention::Picture>& picture)
{
    const int turn = ++m_turn;
    const auto make = [picture, filter = filter(), whole = m_whole] {
        return viewOf(picture->findings, filter, picture->consoles.size(), whole);
    };
    if (picture->findings.list.size() <= mostAtOnce) {
        adopt(picture, make());
        return;
    }
    DispatchQueue::globalBackground().async([screen = self<AttentionNowController>(), turn, picture, make] {
        MainQueue::shared().async([screen, turn, picture = picture, view = make()]() mutable {
            screen->m_tableView.whenUntouched(
                [screen, turn, picture = std::move(picture), view = std::move(view)]() mutable {
                    if (screen->m_turn == turn) {
                        screen->adopt(picture, std::move(view));
                    } else {
                        Attention::release(std::move(picture));
                    }
                });
        });
    });
}

void AttentionNowController::adopt(std::shared_ptr<const Attention::Picture> picture, FindingView view)
{
    Attention::release(std::exchange(m_picture, std::move(picture)));
    m_view = std::move(view);
    showTexts();
    m_tableView.reloadRows();
}

void AttentionNowController::showTexts()
{
    const FleetReading& fleet = m_picture->fleet;
    const bool filtered = filter().isSet();
    const bool updating = fleet.underWay > 0;
    const bool alert = !isComplete(fleet) || isOld(fleet);
    // What is not known to be good is not called so.
    const bool mayBeCalm = !alert || m_picture->findings.needAttention > 0;
    show(m_summaryLabel,
         mayBeCalm ? FindingText::summary(m_picture->findings) : FindingText::openEvents(m_picture->findings));
    show(m_completenessLabel,
         updating ? FindingText::updating(fleet) : FindingText::completeness(fleet, AgeClock::now()));
    m_completenessLabel.setState(!updating && alert ? Role::State::Alert : Role::State::None);
    m_completenessMark.setImageName(isComplete(fleet) ? QStringLiteral("state_alert")
                                                      : QStringLiteral("state_incomplete"));
    m_completenessMark.setHidden(updating || !alert);
    if (updating) {
        m_updatingIndicator.startAnimating();
    } else {
        m_updatingIndicator.stopAnimating();
    }
    show(m_filterLabel, filtered ? FindingText::filtered(filter(), m_picture->consoles) : QString());
    std::size_t shown = 0;
    for (const FindingGroup& each : m_view.groups) {
        shown += each.count;
    }
    show(m_notShownLabel, FindingText::notShown(m_picture->findings.list.size() - shown));
    showNothing();
}

void AttentionNowController::showNothing()
{
    const FleetReading& fleet = m_picture->fleet;
    const Look look = lookNow();
    m_noDataImage.setImageName(look == Look::Clear ? QStringLiteral("attention_clear")
                                                   : QStringLiteral("attention_unknown"));
    m_noDataHeadline.setText(look == Look::Clear ? tr("Nothing needs attention") : tr("Nothing known needs attention"));
    const bool silent = look == Look::Unknown && fleet.offline > 0 && fleet.underWay == 0;
    m_noDataLabel.setText(silent ? FindingText::didNotAnswer(fleet) : m_completenessLabel.text());
    m_noDataLabel.setState(silent ? Role::State::None : m_completenessLabel.state());
    if (std::exchange(m_look, look) != look) {
        Q_EMIT lookChanged();
    }
}

AttentionNowController::Look AttentionNowController::lookNow() const
{
    if (RESTHandler::sharedInstance().corvelList().empty()) {
        return Look::NoConsoles;
    }
    const FleetReading& fleet = m_picture->fleet;
    if (fleet.consoles == 0) {
        return Look::Waiting;
    }
    if (filter().isSet() || !onlyConsolesAreListed()) {
        return Look::Rows;
    }
    return m_picture->findings.list.empty() && isComplete(fleet) && !isOld(fleet) ? Look::Clear : Look::Unknown;
}

bool AttentionNowController::onlyConsolesAreListed() const
{
    return std::ranges::all_of(m_picture->findings.list,
                               [](const Finding& each) { return each.subject == FindingSubject::Console; });
}

void AttentionNowController::announceNewErrors()
{
    const Attention::Picture& picture = *Attention::shared().picture();
    if (picture.fleet.underWay > 0 || picture.fleet.consoles == 0) {
        return; // Once a reading: when it has ended.
    }
    std::set<std::size_t> keys;
    QStringList names;
    std::optional<FindingRow> only;
    for (std::uint32_t place = 0; place < picture.findings.list.size(); ++place) {
        const Finding& finding = picture.findings.list[place];
        if (finding.rank > FindingRank::ConsoleOffline) {
            break; // The list is ranked.
        }
        const std::size_t key = keyOf(finding);
        keys.insert(key);
        if (m_known && !m_known->contains(key)) {
            names << isolated(QString::fromStdString(finding.name));
            only = FindingRow{{place}};
        }
    }
    m_known = std::move(keys);
    if (names.isEmpty() || !isInWindow()) {
        return;
    }
    m_announcement =
        names.size() == 1
            ? FindingText::spoken(picture.findings, *only, AgeClock::now())
            : tr("%1: %2").arg(FindingText::needAttention(static_cast<std::size_t>(names.size())), joinedList(names));
    Q_EMIT announced();
}

bool AttentionNowController::groupsByConsole() const
{
    return !m_view.groups.empty() && m_view.groups.front().corvel != nullptr;
}

Table AttentionNowController::shownTable() const
{
    if (m_picture == nullptr) {
        return {};
    }
    // What stands behind "Show all" is part of the list, too.
    std::set<std::uintptr_t> all;
    for (const FindingGroup& each : m_view.groups) {
        all.insert(identityOf(each));
    }
    const Findings& findings = m_picture->findings;
    const FindingView whole = viewOf(findings, filter(), m_picture->consoles.size(), all);
    std::vector<std::uint32_t> rows;
    std::vector<bool> isListed(findings.list.size());
    const auto list = [&](std::uint32_t finding) {
        rows.push_back(finding);
        isListed[finding] = true;
    };
    for (const FindingGroup& each : whole.groups) {
        for (const FindingRow& row : each.rows) {
            std::ranges::for_each(row.findings, list);
        }
    }
    for (std::uint32_t i = 0; whole.moreConsoles > 0 && i < findings.list.size(); ++i) {
        if (!isListed[i] && filter().shows(findings.list[i])) {
            list(i);
        }
    }
    return tableOfFindings(findings, rows);
}

int AttentionNowController::numberOfSections(TableKind /*tableView*/) const
{
    return static_cast<int>(m_view.groups.size());
}

int AttentionNowController::numberOfRowsInSection(TableKind /*tableView*/, int section) const
{
    return static_cast<int>(group(section).rows.size()) + (group(section).more > 0 ? 1 : 0);
}

std::optional<QString> AttentionNowController::titleForHeaderInSection(TableKind /*tableView*/, int section) const
{
    return groupsByConsole() ? rowText(group(section).console) : FindingText::band(group(section).band);
}

QString AttentionNowController::detailForHeaderInSection(TableKind /*tableView*/, int section) const
{
    return QLocale().toString(static_cast<qulonglong>(group(section).count));
}

QString AttentionNowController::footerForSection(TableKind /*tableView*/, int section) const
{
    const bool isLast = section + 1 == numberOfSections(TableKind::Main);
    const bool aboutOffline = groupsByConsole() ? isLast : group(section).band == FindingBand::NotAnswering;
    QStringList notes;
    if (aboutOffline && showsEveryOfflineConsole()) {
        notes << FindingText::beforeOffline(m_picture->findings.beforeOffline);
    }
    if (isLast) {
        notes << m_notShownLabel.text();
    }
    notes.removeAll(QString());
    return notes.join(u'\n');
}

bool AttentionNowController::showsEveryOfflineConsole() const
{
    const FindingFilter& shown = filter();
    return shown.consoles.empty() && (shown.kinds.empty() || shown.kinds.contains(FindingSubject::Console));
}

const FindingRow* AttentionNowController::rowAt(IndexPath indexPath) const
{
    const std::vector<FindingRow>& rows = group(indexPath.section).rows;
    const auto row = static_cast<std::size_t>(indexPath.row);
    return row < rows.size() ? &rows[row] : nullptr;
}

std::size_t AttentionNowController::keyForRowAtIndexPath(TableKind /*tableView*/, IndexPath indexPath) const
{
    const FindingRow* const row = indexPath.row < 0 ? nullptr : rowAt(indexPath);
    if (row != nullptr) {
        return keyOf(m_picture->findings, *row);
    }
    // Headings, and below them the rows that show all, have keys of their own.
    return std::hash<std::uintptr_t>()(identityOf(group(indexPath.section))) * 2 + (indexPath.row < 0 ? 0 : 1);
}

QVariant AttentionNowController::cellForRowAtIndexPath(TableKind /*tableView*/, IndexPath indexPath)
{
    if (const FindingRow* const row = rowAt(indexPath)) {
        const ConsoleShown console = groupsByConsole() ? ConsoleShown::No : ConsoleShown::Yes;
        return QVariant::fromValue(cellOf(m_picture->findings, *row, console, AgeClock::now()));
    }
    FindingCell cell;
    cell.leadsOn = false;
    //: %1 a number of rows
    cell.more = tr("Show all %1").arg(detailForHeaderInSection(TableKind::Main, indexPath.section));
    cell.accessibleText = cell.more;
    return QVariant::fromValue(cell);
}

void AttentionNowController::didSelectRowAtIndexPath(TableKind /*tableView*/, IndexPath indexPath)
{
    if (const FindingRow* const row = rowAt(indexPath)) {
        openRow(*row);
        m_tableView.deselectRow(indexPath);
    } else {
        m_whole.insert(identityOf(group(indexPath.section)));
        rebuild(m_picture);
    }
}

void AttentionNowController::openRow(const FindingRow& row)
{
    NavigationController* const stack = host().navigationController();
    if (!row.isFolded()) {
        openFinding(host(), m_picture->findings.list[row.findings.front()]);
    } else if (stack != nullptr) {
        stack->open(host(), makeController<FoldedListController>(m_picture, row));
    }
}

void AttentionNowController::expectStop(int section, int row)
{
    if (section >= 0 && section < numberOfSections(TableKind::Main)) {
        if (const FindingRow* const found = rowAt({section, row})) {
            expectStops(m_picture->findings, *found);
        }
    }
}

} // namespace lodestar
