// SPDX-License-Identifier: Apache-2.0
#include "Views/Common/PartitionCell.h"

#include "Controllers/REST/XMLElement.h"
#include "Kit/Core/UIColor+Tessel.h"

#include <QStringList>

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
    m_nameLabel.text = QString::fromStdString(partition.child("PartitionName").text().value_or(""));
    m_nameLabel.match = match;
    m_stateLabel.text = QString::fromStdString(partition.child("PartitionState").text().value_or(""));
    const StateLook look = lookOf(m_stateLabel.text);
    m_stateLabel.color = look.color;
    m_stateMark = QString::fromLatin1(look.mark);
}

QString PartitionCell::accessibleText() const
{
    QStringList parts = {m_nameLabel.text, m_typeLabel.text, m_stateLabel.text, m_referenceCodeLabel.text};
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

} // namespace lodestar
