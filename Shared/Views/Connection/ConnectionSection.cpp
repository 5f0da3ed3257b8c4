// SPDX-License-Identifier: Apache-2.0
#include "Views/Connection/ConnectionSection.h"

#include "Views/Common/CellText.h"

namespace lodestar
{

QString ConnectionRow::spoken() const
{
    static const auto isNothing = [](const QString& text) { return text == QStringLiteral("–"); };
    return lodestar::spoken({title, detail, failure, isNothing(trailing) ? QString() : trailing});
}

} // namespace lodestar
