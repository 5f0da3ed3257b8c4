// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace lodestar
{

/// For text fields that echo dots. The toolkit gives their text to every program that asks the accessibility tree.
class SecureText : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// Makes the tree tell what the screen shows, the dots, from now on. The field names itself by its property
    /// `accessibleName`. Once a field, when it is complete. Main thread.
    Q_INVOKABLE void hideFromAccessibility(QQuickItem* field) const;
};

} // namespace lodestar
