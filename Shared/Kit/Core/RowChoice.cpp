// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/RowChoice.h"

#include <utility>

namespace lodestar
{

RowChoice::RowChoice(QQuickItem* parent) : QQuickItem(parent)
{
    connect(&m_place, &StackPlace::changed, this, &RowChoice::followStack);
    connect(&m_place, &StackPlace::columnChanged, this, &RowChoice::splitsChanged);
    connect(this, &RowChoice::tableChanged, this, [this] {
        if (m_table) {
            // Rows that come and go move the chosen one.
            connect(m_table, &TableOutlet::rowsInserted, this, &RowChoice::update);
            connect(m_table, &TableOutlet::rowsRemoved, this, &RowChoice::update);
            connect(m_table, &TableOutlet::reloaded, this, &RowChoice::findAgain);
        }
    });
}

void RowChoice::act(int index)
{
    m_acting = m_table ? m_table->index(index) : QModelIndex();
    m_actingKey = m_table ? m_table->keyAt(index) : 0;
    if (m_place.stack() != nullptr) {
        m_place.stack()->leaveKeyboardTo(m_place.page());
    }
}

void RowChoice::forget()
{
    m_acting = QPersistentModelIndex();
    if (m_place.stack() != nullptr) {
        m_place.stack()->leaveKeyboardTo(nullptr);
    }
}

bool RowChoice::enter() const
{
    return m_place.stack() != nullptr && m_place.stack()->enter(true);
}

void RowChoice::followStack()
{
    ViewController* const above = m_place.page() != nullptr ? m_place.stack()->screenAbove(*m_place.page()) : nullptr;
    if (std::exchange(m_above, above) != above) {
        m_chosen = above != nullptr ? std::exchange(m_acting, {}) : QPersistentModelIndex();
        m_chosenKey = m_chosen.isValid() ? m_actingKey : 0;
    }
    update();
}

/// What opened the screen may stand in another row by now, or, while a search leaves it out, in none.
void RowChoice::findAgain()
{
    if (m_chosenKey != 0 && (!m_chosen.isValid() || m_table->keyAt(m_chosen.row()) != m_chosenKey)) {
        m_chosen = m_table->index(m_table->indexOfKey(m_chosenKey));
    }
    update();
}

void RowChoice::update()
{
    const int index = splits() && m_chosen.isValid() ? m_chosen.row() : -1;
    if (std::exchange(m_index, index) != index) {
        Q_EMIT indexChanged();
    }
}

} // namespace lodestar
