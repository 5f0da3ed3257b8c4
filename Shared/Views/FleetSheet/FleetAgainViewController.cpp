// SPDX-License-Identifier: Apache-2.0
#include "Views/FleetSheet/FleetAgainViewController.h"

#include <QUrl>

#include <algorithm>
#include <utility>

namespace lodestar
{

FleetAgainViewController::FleetAgainViewController(const std::vector<SheetRow>& refused, Host host)
    : m_host(std::move(host))
{
    setTitle(tr("Passwords, one a user"));
    setScene(QUrl(QStringLiteral("qrc:/Lodestar/Views/FleetAgainScene.qml")));
    m_passwords.setRows(refused);
}

double FleetAgainViewController::height() const
{
    constexpr int mostShown = 5;
    constexpr double fieldHeight = 56;
    constexpr double around = 90; // the header and the note
    return around + fieldHeight * std::min(m_passwords.count(), mostShown);
}

void FleetAgainViewController::verify()
{
    if (!std::exchange(m_isLeft, true)) {
        const auto screen = shared_from_this(); // the host releases its sheet
        m_host.leave();
        m_host.again(m_passwords.typed());
    }
}

void FleetAgainViewController::cancel()
{
    if (!std::exchange(m_isLeft, true)) {
        const auto screen = shared_from_this();
        m_host.leave();
    }
}

} // namespace lodestar
