// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/SecureText.h"

#include "Kit/Core/AccessibleTree.h"

#include <QAccessible>

namespace lodestar
{

void SecureText::hideFromAccessibility(QQuickItem* field) const
{
    // Any description that an event made during the field's creation has to go, or it would stay in use.
    if (QAccessibleInterface* const given = QAccessible::queryAccessibleInterface(field)) {
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(given));
    }
    // The registry owns the description from here on and deletes it with the field.
    QAccessible::registerAccessibleInterface(describeSecureField(*field));
}

} // namespace lodestar
