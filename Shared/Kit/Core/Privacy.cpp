// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/Privacy.h"

#include <QtQml/qqml.h>

namespace lodestar
{

void Privacy::setCovered(bool covered)
{
    if (m_covered != covered) {
        m_covered = covered;
        Q_EMIT coveredChanged();
    }
}

Privacy* Privacy::qmlAttachedProperties(QObject* object)
{
    return new Privacy(object);
}

bool Privacy::covers(QObject* object)
{
    const auto* mark = qobject_cast<Privacy*>(qmlAttachedPropertiesObject<Privacy>(object, false));
    return mark != nullptr && mark->isCovered();
}

} // namespace lodestar
