// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/FleetSearch.h"
#include "Views/Find/FindCell.h"

#include <QStringList>

namespace lodestar
{

/// What a row can show of an object that was found.
struct FoundFields {
    QString name;
    QString usual; ///< the line below, as long as the name or this line itself has what was searched for
    /// What else can be searched for, in the order in which it is preferred. Everything that is searched is here, in
    /// the name, in the usual line or in the state, or nothing would be marked.
    QStringList others{};
    CellLabel state{};
    QString picture{};
    int pictureSize = 20;
};

FoundFields fieldsOf(const FleetSearch& search, const FoundObject& found);

} // namespace lodestar
