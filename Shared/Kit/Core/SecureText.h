// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace lodestar
{

/// Helps text fields that show dots: Qt gives their text to every program that asks the accessibility tree.
class SecureText : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// Makes the accessibility tree tell the dots that the screen shows. The field's property `label` is its name. Call
    /// once per field, when the field is complete. Main thread.
    Q_INVOKABLE void hideFromAccessibility(QQuickItem* field) const;
};

} // namespace lodestar
