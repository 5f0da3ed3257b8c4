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
    const bool isError = health == Health::Error;
    const bool isLEDLit = system.isAttentionLEDLit();
    if (isError || isLEDLit) {
        const char* const badge = !isLEDLit ? "ms_stateerror" : !isError ? "ms_lederror" : "ms_botherror";
        statusImage = {QString::fromLatin1(badge), false};
        nameLeftConstraint = nameLeftBesideBadge;
    }
    nameLabel.text = textOf(system.name());
    nameLabel.match = match;
    statusLabel.text = textOf(system.state());
    statusLabel.state = health == Health::Good ? Role::State::Good
                        : isError              ? Role::State::BadgedError
                                               : Role::State::Idle;
    QStringList parts = {nameLabel.text, statusLabel.text, isError ? tr("error") : QString(),
                         isLEDLit ? tr("attention LED on") : QString()};
    parts.removeDuplicates();
    accessibleText = spoken(std::move(parts));
}

} // namespace lodestar
