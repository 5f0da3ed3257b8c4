// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/Sentence.h"

namespace lodestar
{

QString Sentence::joined(QStringList parts)
{
    parts.removeAll(QString());
    //: Between the parts of a sentence or of a list
    return parts.join(tr(", "));
}

} // namespace lodestar
