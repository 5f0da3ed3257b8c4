// SPDX-License-Identifier: Apache-2.0
#include "Views/ServiceableEvents/SEListCell.h"

#include "Inventory/ServiceableEvent.h"
#include "Views/Common/CellText.h"

namespace lodestar
{

SEListCell::SEListCell(const ServiceableEvent& event, const QString& match)
{
    titleLabel.text = QString::fromStdString(event.title());
    titleLabel.match = match;
    timeLabel.text = textOf(event.lastReported());
}

QString SEListCell::accessibleText() const
{
    return spoken({titleLabel.text, timeLabel.text});
}

} // namespace lodestar
