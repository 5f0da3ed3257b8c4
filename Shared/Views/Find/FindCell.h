// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Views/Common/CellViews.h"

namespace lodestar
{

/// A row of Find, as a value: a picture, a name over a line, and at the end a state over a console. Or a picture, a
/// text and a count at the end; or only the text that leads to more rows.
struct FindCell {
    Q_GADGET
    QML_VALUE_TYPE(findCell)
    Q_PROPERTY(QString picture MEMBER picture)
    Q_PROPERTY(int pictureSize MEMBER pictureSize)
    Q_PROPERTY(bool quiet MEMBER quiet)
    Q_PROPERTY(lodestar::CellLabel name MEMBER name)
    Q_PROPERTY(lodestar::CellLabel line MEMBER line)
    Q_PROPERTY(lodestar::CellLabel state MEMBER state)
    Q_PROPERTY(QString console MEMBER console)
    Q_PROPERTY(QString count MEMBER count)
    Q_PROPERTY(QString more MEMBER more)
    Q_PROPERTY(bool leadsOn MEMBER leadsOn)
    Q_PROPERTY(bool selectable MEMBER selectable)
    Q_PROPERTY(QString accessibleText MEMBER accessibleText)

public:
    QString picture{};
    int pictureSize = 24; ///< points
    bool quiet = false;   ///< the picture only tells what the row is
    CellLabel name{};
    CellLabel line{};
    CellLabel state{};
    QString console{}; ///< empty where the name says it
    QString count{};
    QString more{};       ///< a row that is only this text, "Show all 12", has nothing else
    bool leadsOn = false; ///< has a chevron
    bool selectable = true;
    QString accessibleText{};

    friend bool operator==(const FindCell&, const FindCell&) = default;
};

} // namespace lodestar
