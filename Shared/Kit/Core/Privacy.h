// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace lodestar
{

/// Attached to an item that must not be readable in a picture of the screen: `Privacy.covered: true`. The code that
/// takes the picture covers the item; the item itself draws as usual. Fields that hide their text need no mark.
class Privacy : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Attached to items")
    QML_ATTACHED(lodestar::Privacy)
    Q_PROPERTY(bool covered MEMBER m_covered NOTIFY coveredChanged)

public:
    explicit Privacy(QObject* parent = nullptr) : QObject(parent) {}
    static Privacy* qmlAttachedProperties(QObject* object);
    /// Whether the object is marked. The query attaches nothing to the object.
    static bool covers(QObject* object);

Q_SIGNALS:
    void coveredChanged();

private:
    bool m_covered = false;
};

} // namespace lodestar
