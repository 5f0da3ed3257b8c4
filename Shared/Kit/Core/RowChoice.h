// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/StackPlace.h"
#include "Kit/Core/Table.h"

namespace lodestar
{

/// Knows which row of a table opened the screen above the table's. In the start column that row is shown as chosen, and
/// the keyboard stays with the table when another is chosen. An item without looks; the table puts it among its own.
/// Main thread.
class RowChoice : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(lodestar::TableOutlet* table MEMBER m_table NOTIFY tableChanged REQUIRED)
    /// The chosen row while the table stands in the start column; otherwise -1.
    Q_PROPERTY(int index READ index NOTIFY indexChanged)
    /// Whether the table stands in the start column.
    Q_PROPERTY(bool splits READ splits NOTIFY splitsChanged)

public:
    explicit RowChoice(QQuickItem* parent = nullptr);

    int index() const { return m_index; }
    bool splits() const { return m_place.column() == StackPlace::Start; }
    /// The row is about to do what it does. If that opens a screen, now or after a menu, the row is the chosen one.
    Q_INVOKABLE void act(int index);
    /// The person has turned to something else on the screen.
    Q_INVOKABLE void forget();
    /// Gives the keyboard to the end column; false when there is no screen.
    Q_INVOKABLE bool enter() const;

Q_SIGNALS:
    void tableChanged();
    void indexChanged();
    void splitsChanged();

private:
    void followStack();
    void findAgain();
    void update();

    StackPlace m_place{this};
    QPointer<TableOutlet> m_table;
    QPointer<ViewController> m_above;
    QPersistentModelIndex m_acting;
    std::size_t m_actingKey = 0; ///< what the row shows; 0 where rows are known by their places
    QPersistentModelIndex m_chosen;
    std::size_t m_chosenKey = 0;
    int m_index = -1;
};

} // namespace lodestar
