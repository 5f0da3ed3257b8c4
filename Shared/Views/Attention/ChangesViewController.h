// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/History.h"
#include "Kit/Core/Table.h"
#include "Platform/NotificationCenter.h"
#include "Views/Attention/AttentionSegment.h"
#include "Views/Attention/ChangeTargets.h"
#include "Views/Common/DayBarsOutlet.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

namespace lodestar
{

/// The segment Changes: what successive readings of the last 30 days found different, by day, below bars that count
/// each day's rows, as far as the tab's filter shows them. It follows the history while it is seen. Days are made of
/// changes off the main thread.
class ChangesViewController : public lodestar::AttentionSegment, public TableDataSource
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by its host")
    Q_PROPERTY(lodestar::TableOutlet* tableView READ tableView CONSTANT)
    Q_PROPERTY(lodestar::DayBarsOutlet* bars READ bars CONSTANT)
    Q_PROPERTY(QString emptyText READ emptyText NOTIFY shownChanged)
    Q_PROPERTY(QString filterText READ filterText NOTIFY shownChanged)

public:
    static constexpr int barDays = 30;

    ChangesViewController();

    TableOutlet* tableView() { return &m_tableView; }
    /// Hidden while there is nothing to show.
    DayBarsOutlet* bars() { return &m_bars; }
    /// What stands in place of rows; empty while there are rows, or nothing is known yet.
    const QString& emptyText() const { return m_emptyText; }
    /// What the tab's filter shows of the changes; empty while that is all.
    const QString& filterText() const { return m_filterText; }

    Table shownTable() const override;
    int numberOfSections(TableKind tableView) const override;
    int numberOfRowsInSection(TableKind tableView, int section) const override;
    std::optional<QString> titleForHeaderInSection(TableKind tableView, int section) const override;
    QString detailForHeaderInSection(TableKind tableView, int section) const override;
    QString footerForSection(TableKind tableView, int section) const override;
    std::size_t keyForRowAtIndexPath(TableKind tableView, IndexPath indexPath) const override;
    QVariant cellForRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;
    void didSelectRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;

Q_SIGNALS:
    void shownChanged();
    /// The list should scroll to the row of this flat index.
    void scrollRequested(int index);

protected:
    void viewDidLoad() override;
    void viewDidAppear() override;
    void viewDidDisappear() override;
    void filterDidChange() override;

private:
    /// The changes that the filter leaves, by day.
    struct Shown {
        std::shared_ptr<const ChangeList> list{};
        std::vector<ChangeDay> days{};
        std::size_t notShown = 0;
    };
    void update();
    /// Shows what has come, once no row is touched.
    void catchUp();
    void adopt(Shown shown);
    /// What stands below the changes, or below the text in their place.
    QStringList notes() const;
    void showCounts();
    void goToDay(int bar);
    void tick();
    const ChangeRow& rowAt(IndexPath indexPath) const;

    TableOutlet m_tableView;
    DayBarsOutlet m_bars;
    QString m_emptyText;
    QString m_filterText;
    Shown m_shown;
    std::optional<Shown> m_next; ///< waits until no row is touched
    std::chrono::local_days m_today;
    ChangeTargets m_targets;
    int m_turn = 0;                                              ///< of the last update, the only one that is shown
    std::vector<NotificationCenter::Observation> m_observations; ///< while seen
};

} // namespace lodestar
