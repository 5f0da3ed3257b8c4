// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Views/Common/CellViews.h"

#include <QObject>

namespace lodestar
{

class ServiceableEvent;

/// One row of the serviceable-event list, as a value: the state of the event's approval with its number, over the
/// unchanged text of when the event was last reported.
struct SEListCell {
    Q_GADGET
    QML_VALUE_TYPE(seListCell)
    Q_PROPERTY(lodestar::CellLabel titleLabel MEMBER titleLabel)
    Q_PROPERTY(lodestar::CellLabel timeLabel MEMBER timeLabel)
    Q_PROPERTY(QString accessibleText READ accessibleText)

public:
    SEListCell() = default;
    /// `match` is the searched text; empty for none.
    SEListCell(const ServiceableEvent& event, const QString& match);

    QString accessibleText() const;

    CellLabel titleLabel;
    CellLabel timeLabel;
};

} // namespace lodestar
