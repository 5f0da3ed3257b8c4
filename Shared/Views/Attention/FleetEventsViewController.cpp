// SPDX-License-Identifier: Apache-2.0
#include "Views/Attention/FleetEventsViewController.h"

#include "Fleet/EventTable.h"
#include "Kit/Core/Sentence.h"
#include "Platform/Queues/DispatchQueue.h"
#include "Platform/Queues/FreedElsewhere.h"
#include "Platform/Queues/MainQueue.h"
#include "Views/Attention/FindingText.h"
#include "Views/Attention/FleetEventCell.h"
#include "Views/Attention/ObjectScenes.h"
#include "Views/Common/AgeClock.h"
#include "Views/Common/FeedName.h"
#include "Views/Common/RowKey.h"

#include <QLocale>

namespace lodestar
{
namespace
{

QStringList isolatedNames(const std::vector<std::string>& names)
{
    QStringList list;
    for (const std::string& name : names) {
        list << isolated(rowText(name));
    }
    return list;
}

QString number(std::size_t count)
{
    return QLocale().toString(static_cast<qulonglong>(count));
}

} // namespace

FleetEventsViewController::FleetEventsViewController()
    : m_tableView(*this, TableKind::Main), m_searchResultsTableView(*this, TableKind::SearchResults)
{
    for (TableOutlet* table : {&m_tableView, &m_searchResultsTableView}) {
        table->setRowHeight(60);
        table->setSeparatorInset(15, 17);
    }
    m_bars.setHidden(true);
}

void FleetEventsViewController::viewDidLoad()
{
    setTitle(tr("Events"));
    connect(&m_searchBar, &SearchBarOutlet::textChanged, this, &FleetEventsViewController::findAgain);
}

void FleetEventsViewController::viewDidAppear()
{
    m_observations.push_back(
        NotificationCenter::defaultCenter().addObserver("AttentionDidChange", [this] { update(); }));
    connect(&AgeClock::shared(), &AgeClock::ticked, this, &FleetEventsViewController::tick);
    update();
}

void FleetEventsViewController::viewDidDisappear()
{
    m_observations.clear();
    AgeClock::shared().disconnect(this);
}

void FleetEventsViewController::tick()
{
    // At midnight, today becomes yesterday.
    if (localDayOf(AgeClock::now()) != m_today) {
        update();
    }
}

void FleetEventsViewController::filterDidChange()
{
    if (isInWindow()) {
        update();
    }
}

void FleetEventsViewController::setChoice(EventChoice choice)
{
    if (!(choice == m_choice)) {
        m_choice = std::move(choice);
        update();
    }
}

void FleetEventsViewController::update()
{
    const auto picture = Attention::shared().picture();
    m_today = localDayOf(AgeClock::now());
    EventChoice choice = m_choice;
    choice.consoles = filter().consoles;
    const int turn = ++m_turn;
    DispatchQueue::globalBackground().async(
        [screen = self<FleetEventsViewController>(), turn, picture, choice = std::move(choice), now = AgeClock::now()] {
            auto list = std::make_unique<const FleetEventList>(FleetEventList::of(picture->consoles, choice, now));
            MainQueue::shared().async([screen, turn, list = freedElsewhere(std::move(list))]() mutable {
                screen->whenUntouched([screen, turn, list = std::move(list)]() mutable {
                    if (screen->m_turn == turn) {
                        screen->adopt(std::move(list));
                    }
                });
            });
        });
}

void FleetEventsViewController::whenUntouched(std::function<void()> then)
{
    m_tableView.whenUntouched(
        [this, then = std::move(then)]() mutable { m_searchResultsTableView.whenUntouched(std::move(then)); });
}

void FleetEventsViewController::adopt(std::shared_ptr<const FleetEventList> list)
{
    m_list = std::move(list);
    m_isKnown = true;
    m_bars.showEvents(m_list->perDay, m_today);
    const bool wasHidden = m_bars.isHidden();
    m_bars.setHidden(m_list->read == m_list->eventsNotRead.size());
    if (wasHidden && !m_bars.isHidden()) {
        m_bars.grow();
    }
    findAgain();
    m_tableView.reloadRows();
    Q_EMIT listChanged();
}

void FleetEventsViewController::findAgain()
{
    m_found = m_searchBar.isActive() ? m_list->texts.rowsContaining(m_searchBar.text().toStdString())
                                     : std::vector<std::uint32_t>();
    m_searchResultsTableView.reloadData();
}

QString FleetEventsViewController::notReadText() const
{
    QStringList sentences;
    const auto offline = isolatedNames(m_list->consolesNotRead);
    if (!offline.isEmpty()) {
        //: %1 the names of so many consoles
        sentences << tr("%1 were not read.", nullptr, static_cast<int>(offline.size())).arg(joinedList(offline));
    }
    const auto missing = isolatedNames(m_list->eventsNotRead);
    if (!missing.isEmpty()) {
        //: What was not read, and the names of its consoles.
        sentences
            << tr("%1 of %2 are missing.").arg(feedNameAtStart(ObjectType::ServiceableEvent), joinedList(missing));
    }
    return sentences.join(QLatin1Char(' '));
}

QString FleetEventsViewController::emptyText() const
{
    if (!m_isKnown || !m_list->shown.empty()) {
        return {};
    }
    if (m_list->read == 0) {
        return tr("Nothing was read yet. Refresh first.");
    }
    const QString nothing = m_list->events.empty() ? tr("No serviceable events.") : tr("Nothing left to show");
    const QString notRead = notReadText();
    return notRead.isEmpty() ? nothing : nothing + QLatin1Char('\n') + notRead;
}

QString FleetEventsViewController::choiceText() const
{
    if (m_choice == wholeList && filter().consoles.empty()) {
        return {};
    }
    QStringList parts{EventOrderViewController::nameOf(m_choice.order)};
    if (m_choice.openOnly) {
        parts << tr("open");
    }
    if (m_choice.callHomeOnly) {
        parts << tr("call home");
    }
    parts << FindingText::chosenConsoles(filter(), Attention::shared().picture()->consoles);
    //: What is chosen, how many events that are, and how many there are.
    return tr("%1: %2 of %3").arg(Sentence::joined(parts), number(m_list->shown.size()), number(m_list->events.size()));
}

void FleetEventsViewController::showOrder()
{
    auto sheet = makeController<EventOrderViewController>(self<FleetEventsViewController>());
    connect(this, &FleetEventsViewController::listChanged, sheet.get(), &EventOrderViewController::choiceChanged);
    host().presentSemiViewController(sheet, {.pushParentBack = false, .height = sheet->height()});
}

void FleetEventsViewController::endChoosing()
{
    host().dismissSemiModalView();
}

Table FleetEventsViewController::shownTable() const
{
    if (!m_searchBar.isActive() || m_searchBar.text().isEmpty()) {
        return tableOfEvents(m_list->events, m_list->shown);
    }
    std::vector<std::uint32_t> rows;
    for (const std::uint32_t found : m_found) {
        rows.push_back(m_list->shown.at(found));
    }
    return tableOfEvents(m_list->events, rows);
}

int FleetEventsViewController::numberOfSections(TableKind tableView) const
{
    return tableView == TableKind::SearchResults ? 1 : static_cast<int>(m_list->groups.size());
}

int FleetEventsViewController::numberOfRowsInSection(TableKind tableView, int section) const
{
    return static_cast<int>(tableView == TableKind::SearchResults
                                ? m_found.size()
                                : m_list->groups.at(static_cast<std::size_t>(section)).events.size());
}

std::optional<QString> FleetEventsViewController::titleForHeaderInSection(TableKind tableView, int section) const
{
    const bool grouped = m_choice.order == EventOrder::ByStatus || m_choice.order == EventOrder::ByReferenceCode;
    if (tableView == TableKind::SearchResults || !grouped) {
        return {};
    }
    const std::string& title = m_list->groups.at(static_cast<std::size_t>(section)).title;
    if (!title.empty()) {
        return rowText(title);
    }
    return m_choice.order == EventOrder::ByReferenceCode ? tr("no reference code") : tr("no status");
}

QString FleetEventsViewController::noteForHeaderInSection(TableKind tableView, int section) const
{
    return titleForHeaderInSection(tableView, section)
               ? rowText(m_list->groups.at(static_cast<std::size_t>(section)).newestText)
               : QString();
}

QString FleetEventsViewController::detailForHeaderInSection(TableKind tableView, int section) const
{
    return number(static_cast<std::size_t>(numberOfRowsInSection(tableView, section)));
}

QString FleetEventsViewController::footerForSection(TableKind tableView, int section) const
{
    return section == numberOfSections(tableView) - 1 ? notReadText() : QString();
}

const FleetEvent& FleetEventsViewController::eventAt(TableKind tableView, IndexPath indexPath) const
{
    const auto row = static_cast<std::size_t>(indexPath.row);
    return m_list->events.at(tableView == TableKind::SearchResults
                                 ? m_list->shown.at(m_found.at(row))
                                 : m_list->groups.at(static_cast<std::size_t>(indexPath.section)).events.at(row));
}

std::size_t FleetEventsViewController::keyForRowAtIndexPath(TableKind tableView, IndexPath indexPath) const
{
    if (indexPath.row < 0) {
        return rowKey(m_list->groups.at(static_cast<std::size_t>(indexPath.section)).title);
    }
    const FleetEvent& event = eventAt(tableView, indexPath);
    return rowKey(event.corvel.get(), event.event.title(), event.referenceCode, event.firstReported.value_or(0));
}

QVariant FleetEventsViewController::cellForRowAtIndexPath(TableKind tableView, IndexPath indexPath)
{
    const QString match = tableView == TableKind::SearchResults ? m_searchBar.text() : QString();
    return QVariant::fromValue(FleetEventCell(eventAt(tableView, indexPath), AgeClock::now(), match));
}

void FleetEventsViewController::didSelectRowAtIndexPath(TableKind tableView, IndexPath indexPath)
{
    const FleetEvent& event = eventAt(tableView, indexPath);
    openObject(host(), event.corvel, ObjectType::ServiceableEvent, event.event.element());
    (tableView == TableKind::SearchResults ? m_searchResultsTableView : m_tableView).deselectRow(indexPath);
}

} // namespace lodestar
