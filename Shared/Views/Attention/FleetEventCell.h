// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/FleetEvents.h"
#include "Views/Common/CellViews.h"

#include <QObject>

namespace lodestar
{

/// One event among those of all consoles, as a value: its title over a readable time and the console's own seconds; at
/// the end the console over what is open and calls home.
struct FleetEventCell {
    Q_GADGET
    QML_VALUE_TYPE(fleetEventCell)
    Q_PROPERTY(lodestar::CellLabel title MEMBER title)
    Q_PROPERTY(QString moment MEMBER moment)
    Q_PROPERTY(QString seconds MEMBER seconds)
    Q_PROPERTY(lodestar::CellLabel found MEMBER found)
    Q_PROPERTY(QString console MEMBER console)
    Q_PROPERTY(QString status MEMBER status)
    Q_PROPERTY(QString accessibleText READ accessibleText)

public:
    FleetEventCell() = default;
    /// `match` is the searched text; empty for none.
    FleetEventCell(const FleetEvent& event, WallTime now, const QString& match);

    QString accessibleText() const;

    CellLabel title;
    QString moment;  ///< "09:41"; empty when the console's time is none
    QString seconds; ///< as the console has them
    /// What else of a found event holds the searched text; empty where the title or the console does.
    CellLabel found;
    QString console;
    QString status; ///< "Open, call home"
};

} // namespace lodestar
