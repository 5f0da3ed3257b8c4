// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/FleetSheet.h"
#include "Kit/Core/Role.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace lodestar
{

/// A row of a fleet sheet, as a value: a name over an address, and at the end a state over a note. Or one action.
struct FleetRowCell {
    Q_GADGET
    QML_VALUE_TYPE(fleetRowCell)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString address MEMBER address)
    Q_PROPERTY(QString word MEMBER word)
    // A number to QML: what is compiled of it cannot read an enumeration of another module out of a value.
    Q_PROPERTY(int state READ stateNumber)
    Q_PROPERTY(bool working MEMBER working)
    Q_PROPERTY(QString note MEMBER note)
    Q_PROPERTY(bool incomplete MEMBER incomplete)
    Q_PROPERTY(QString action MEMBER action)
    Q_PROPERTY(QString accessibleText READ accessibleText)

public:
    /// How far a console of an import is.
    static FleetRowCell of(const FleetImport::Row& row);
    /// Why a row of a sheet cannot be used.
    static FleetRowCell ofUnusable(const SheetRow& row);
    /// The row's text for screen readers, as one sentence.
    QString accessibleText() const;

    QString name{};
    QString address{};
    QString word{};
    Role::State state = Role::State::None;
    bool working = false; ///< a spinner stands for the mark
    QString note{};
    bool incomplete = false; ///< the note says what is missing
    QString action{};        ///< a row that is only this text, "Try These 3 Again", has nothing else

    int stateNumber() const { return static_cast<int>(state); }
    friend bool operator==(const FleetRowCell&, const FleetRowCell&) = default;
};

} // namespace lodestar
