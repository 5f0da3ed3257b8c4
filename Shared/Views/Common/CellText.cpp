// SPDX-License-Identifier: Apache-2.0
#include "Views/Common/CellText.h"

#include "Kit/Core/Sentence.h"

#include <utility>

namespace lodestar
{

QString textOf(const std::optional<std::string>& field)
{
    return QString::fromStdString(field.value_or(""));
}

QString spoken(QStringList words)
{
    return Sentence::joined(std::move(words));
}

} // namespace lodestar
