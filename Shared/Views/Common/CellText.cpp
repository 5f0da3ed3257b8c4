// SPDX-License-Identifier: Apache-2.0
#include "Views/Common/CellText.h"

#include "XML/XMLElement.h"

namespace lodestar
{

QString textOf(const XMLElement& element)
{
    return QString::fromStdString(element.text().value_or(""));
}

QString spoken(QStringList words)
{
    words.removeAll(QString());
    return words.join(QStringLiteral(", "));
}

} // namespace lodestar
