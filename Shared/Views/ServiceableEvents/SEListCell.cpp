// SPDX-License-Identifier: Apache-2.0
#include "Views/ServiceableEvents/SEListCell.h"

#include "Inventory/ServiceableEvent.h"
#include "Views/Common/CellText.h"

namespace lodestar
{

SEListCell::SEListCell(const ServiceableEvent& event, const QString& match)
{
    m_titleLabel.text = QString::fromStdString(event.title());
    m_titleLabel.match = match;
    m_timeLabel.text = textOf(event.lastReported());
}

QString SEListCell::accessibleText() const
{
    return spoken({m_titleLabel.text, m_timeLabel.text});
}

} // namespace lodestar
