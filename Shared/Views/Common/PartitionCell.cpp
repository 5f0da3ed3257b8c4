// SPDX-License-Identifier: Apache-2.0
#include "Views/Common/PartitionCell.h"

#include "Kit/Core/UIColor+Tessel.h"
#include "Views/Common/CellText.h"
#include "XML/XMLElement.h"

namespace lodestar
{
namespace
{

struct StateLook {
    QColor color;
    const char* mark;
};

// States are judged by their exact wording, case included: whatever is not known calls for attention.
StateLook lookOf(const QString& state)
{
    if (state == QLatin1String("running")) {
        return {UIColor::successGreen(), "good"};
    }
    if (state == QLatin1String("not activated")) {
        return {UIColor::failedRed(), "off"};
    }
    if (state == QLatin1String("error")) {
        return {UIColor::errorRed(), "error"};
    }
    return {UIColor::orangeColor(), "alert"};
}

} // namespace

PartitionCell::PartitionCell(const XMLElement& partition, const QString& match)
{
    m_nameLabel.text = textOf(partition.child("PartitionName"));
    m_nameLabel.match = match;
    m_stateLabel.text = textOf(partition.child("PartitionState"));
    const StateLook look = lookOf(m_stateLabel.text);
    m_stateLabel.color = look.color;
    m_stateMark = QString::fromLatin1(look.mark);
}

QString PartitionCell::accessibleText() const
{
    return spoken({m_nameLabel.text, m_typeLabel.text, m_stateLabel.text, m_referenceCodeLabel.text});
}

} // namespace lodestar
