// SPDX-License-Identifier: Apache-2.0
#include "Views/Common/CellText.h"

namespace lodestar
{

QString textOf(const std::optional<std::string>& field)
{
    return QString::fromStdString(field.value_or(""));
}

QString spoken(QStringList words)
{
    words.removeAll(QString());
    return words.join(QStringLiteral(", "));
}

} // namespace lodestar
