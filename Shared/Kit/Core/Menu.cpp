// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/Menu.h"

#include <utility>

namespace lodestar
{

void MenuOutlet::present(QString title, QString message, const std::vector<MenuChoice>& choices, int cancelIndex,
                         Handler handler)
{
    m_title = std::move(title);
    m_message = std::move(message);
    m_choices.clear();
    for (const MenuChoice& choice : choices) {
        m_choices << QVariant::fromValue(choice);
    }
    m_cancelIndex = cancelIndex;
    m_handler = std::move(handler);
    m_presented = true;
    Q_EMIT messageChanged();
    Q_EMIT presentedChanged();
}

void MenuOutlet::setMessage(QString message)
{
    if (m_presented) {
        m_message = std::move(message);
        Q_EMIT messageChanged();
    }
}

void MenuOutlet::dismiss()
{
    // The texts are kept because the popup still shows them while it fades out.
    m_handler = nullptr;
    if (std::exchange(m_presented, false)) {
        Q_EMIT presentedChanged();
    }
}

void MenuOutlet::choose(int index)
{
    if (!m_presented || index < 0 || index >= m_choices.size()) {
        return;
    }
    const Handler handler = std::move(m_handler);
    dismiss();
    if (handler) {
        handler(index);
    }
}

} // namespace lodestar
