// SPDX-License-Identifier: Apache-2.0
#include "Views/ServiceableEvents/SEListCell.h"

#include "Views/Common/CellText.h"
#include "XML/XMLElement.h"

namespace lodestar
{

SEListCell::SEListCell(const XMLElement& event, const QString& match)
{
    m_titleLabel.text = QString::fromStdString(title(event));
    m_titleLabel.match = match;
    m_timeLabel.text = textOf(event.child("lastReportedTimestamp"));
}

QString SEListCell::accessibleText() const
{
    return spoken({m_titleLabel.text, m_timeLabel.text});
}

std::string SEListCell::title(const XMLElement& event)
{
    return event.child("ApprovalState").text().value_or("") + " (#" + event.child("problemNumber").text().value_or("") +
           ")";
}

} // namespace lodestar
