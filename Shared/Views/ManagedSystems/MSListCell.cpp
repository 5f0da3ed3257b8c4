// SPDX-License-Identifier: Apache-2.0
#include "Views/ManagedSystems/MSListCell.h"

#include "Inventory/ManagedSystem.h"
#include "Views/Common/CellText.h"

#include <utility>

namespace lodestar
{
namespace
{

constexpr double nameLeftBesideBadge = 45;

} // namespace

MSListCell::MSListCell(const ManagedSystem& system, const QString& match)
{
    const Health health = system.health();
    m_isError = health == Health::Error;
    m_isLEDLit = system.isAttentionLEDLit();
    if (m_isError || m_isLEDLit) {
        const char* const badge = !m_isLEDLit ? "ms_stateerror" : !m_isError ? "ms_lederror" : "ms_botherror";
        m_statusImage = {QString::fromLatin1(badge), false};
        m_nameLeftConstraint = nameLeftBesideBadge;
    }
    m_nameLabel.text = textOf(system.name());
    m_nameLabel.match = match;
    m_statusLabel.text = textOf(system.state());
    m_statusLabel.state = health == Health::Good ? Role::State::Good
                          : m_isError            ? Role::State::BadgedError
                                                 : Role::State::Idle;
}

QString MSListCell::accessibleText() const
{
    QStringList parts = {m_nameLabel.text, m_statusLabel.text};
    if (m_isError) {
        parts << tr("error");
    }
    if (m_isLEDLit) {
        parts << tr("attention LED on");
    }
    parts.removeDuplicates();
    return spoken(std::move(parts));
}

} // namespace lodestar
