// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/Bars.h"

#include "Kit/Core/OnMain.h"

#include <utility>

namespace lodestar
{

void BarButtonOutlet::setEnabled(bool enabled)
{
    assignOnMain(this, &BarButtonOutlet::m_enabled, enabled, &BarButtonOutlet::itemChanged);
}

void BarButtonOutlet::setItem(SystemItem item, std::function<void()> action)
{
    onMain(this, [item, action = std::move(action)](BarButtonOutlet& button) mutable {
        button.m_item = item;
        button.m_action = std::move(action);
        button.m_enabled = item != SystemItem::None;
        Q_EMIT button.itemChanged();
    });
}

QString BarButtonOutlet::imageName() const
{
    return m_item == SystemItem::Search    ? QStringLiteral("search")
           : m_item == SystemItem::Refresh ? QStringLiteral("refresh")
                                           : QString();
}

QString BarButtonOutlet::title() const
{
    return m_item == SystemItem::Search ? tr("Search") : m_item == SystemItem::Refresh ? tr("Refresh") : QString();
}

void BarButtonOutlet::tap()
{
    if (m_enabled && m_action) {
        // A copy is called, because the action may set another item.
        const auto action = m_action;
        action();
    }
}

void SearchBarOutlet::setText(const QString& text)
{
    if (m_text != text) {
        m_text = text;
        Q_EMIT textChanged();
    }
}

void SearchBarOutlet::becomeFirstResponder()
{
    if (!std::exchange(m_active, true)) {
        Q_EMIT activeChanged();
    }
    Q_EMIT focusRequested();
}

void SearchBarOutlet::cancel()
{
    if (std::exchange(m_active, false)) {
        Q_EMIT activeChanged();
        setText({});
    }
}

} // namespace lodestar
