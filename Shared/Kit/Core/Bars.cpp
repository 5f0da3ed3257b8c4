// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/Bars.h"

#include "Kit/Core/OnMain.h"

#include <utility>

namespace lodestar
{

void BarButtonOutlet::setEnabled(bool enabled)
{
    onMain(this, [enabled](BarButtonOutlet& button) {
        if (button.m_enabled != enabled) {
            button.m_enabled = enabled;
            Q_EMIT button.itemChanged();
        }
    });
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
    switch (m_item) {
    case SystemItem::Search:
        return QStringLiteral("search");
    case SystemItem::Refresh:
        return QStringLiteral("refresh");
    case SystemItem::None:
        break;
    }
    return {};
}

QString BarButtonOutlet::title() const
{
    switch (m_item) {
    case SystemItem::Search:
        return tr("Search");
    case SystemItem::Refresh:
        return tr("Refresh");
    case SystemItem::None:
        break;
    }
    return {};
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
