// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Attention.h"
#include "Kit/Core/Bars.h"
#include "Kit/Core/Table.h"
#include "Platform/NotificationCenter.h"
#include "Views/Attention/AttentionSegment.h"
#include "Views/Attention/EventOrderViewController.h"
#include "Views/Common/DayBarsOutlet.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace lodestar
{

/// The segment Events: the events of all consoles in one list, in an order and a choice that a person makes and that
/// last until the program ends; the consoles are those of the tab's filter. The list is made off the main thread and
/// follows the readings while it is seen.
class FleetEventsViewController : public lodestar::AttentionSegment, public TableDataSource, public EventChoosing
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by its host")
    Q_PROPERTY(lodestar::TableOutlet* tableView READ tableView CONSTANT)
    Q_PROPERTY(lodestar::TableOutlet* searchResultsTableView READ searchResultsTableView CONSTANT)
    Q_PROPERTY(lodestar::SearchBarOutlet* searchBar READ searchBar CONSTANT)
    Q_PROPERTY(lodestar::DayBarsOutlet* bars READ bars CONSTANT)
    Q_PROPERTY(QString emptyText READ emptyText NOTIFY listChanged)
    Q_PROPERTY(QString choiceText READ choiceText NOTIFY listChanged)

public:
    FleetEventsViewController();

    TableOutlet* tableView() { return &m_tableView; }
    TableOutlet* searchResultsTableView() { return &m_searchResultsTableView; }
    SearchBarOutlet* searchBar() { return &m_searchBar; }
    /// Hidden until the first list is there.
    DayBarsOutlet* bars() { return &m_bars; }
    /// What stands in place of rows; empty while there are rows, or nothing is known yet.
    QString emptyText() const;
    /// "By reference code, open: 4 of 11"; empty while all events are shown, the newest first.
    QString choiceText() const;

    const EventChoice& choice() const override { return m_choice; }
    void setChoice(EventChoice choice) override;
    const FleetEventList& list() const override { return *m_list; }
    void endChoosing() override;

    Q_INVOKABLE void showOrder();
    void resetChoice() { setChoice(wholeList); }
    Q_INVOKABLE void search() { m_searchBar.becomeFirstResponder(); }

    Table shownTable() const override;
    int numberOfSections(TableKind tableView) const override;
    int numberOfRowsInSection(TableKind tableView, int section) const override;
    std::optional<QString> titleForHeaderInSection(TableKind tableView, int section) const override;
    QString noteForHeaderInSection(TableKind tableView, int section) const override;
    QString detailForHeaderInSection(TableKind tableView, int section) const override;
    QString footerForSection(TableKind tableView, int section) const override;
    std::size_t keyForRowAtIndexPath(TableKind tableView, IndexPath indexPath) const override;
    QVariant cellForRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;
    void didSelectRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;

Q_SIGNALS:
    void listChanged();

protected:
    void viewDidLoad() override;
    void viewDidAppear() override;
    void viewDidDisappear() override;
    void filterDidChange() override;

private:
    void update();
    void adopt(std::shared_ptr<const FleetEventList> list);
    void findAgain();
    void tick();
    /// Calls the function once no row of either table is touched.
    void whenUntouched(std::function<void()> then);
    const FleetEvent& eventAt(TableKind tableView, IndexPath indexPath) const;
    QString notReadText() const;

    TableOutlet m_tableView;
    TableOutlet m_searchResultsTableView;
    SearchBarOutlet m_searchBar;
    DayBarsOutlet m_bars;
    EventChoice m_choice = wholeList;
    std::shared_ptr<const FleetEventList> m_list = std::make_shared<FleetEventList>();
    std::vector<std::uint32_t> m_found; ///< rows of the list's `shown`
    std::chrono::local_days m_today{};
    bool m_isKnown = false;                                      ///< a list was made
    int m_turn = 0;                                              ///< of the last update, the only one that is shown
    std::vector<NotificationCenter::Observation> m_observations; ///< while seen
};

} // namespace lodestar
