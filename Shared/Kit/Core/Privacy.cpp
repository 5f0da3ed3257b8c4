// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/Privacy.h"

#include <QtQml/qqml.h>

namespace lodestar
{

Privacy* Privacy::qmlAttachedProperties(QObject* object)
{
    return new Privacy(object);
}

bool Privacy::covers(QObject* object)
{
    const auto* mark = qobject_cast<Privacy*>(qmlAttachedPropertiesObject<Privacy>(object, false));
    return mark != nullptr && mark->m_covered;
}

} // namespace lodestar
