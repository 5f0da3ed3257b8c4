// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/NavigationStack.h"

namespace lodestar
{

/// Tells an item, as the attached `StackPlace`, where its screen stands in a navigation stack. What is in no stack,
/// such as a sheet, stands alone. Main thread.
class StackPlace : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_ATTACHED(lodestar::StackPlace)
    QML_UNCREATABLE("Attached to items")
    Q_PROPERTY(Column column READ column NOTIFY columnChanged)
    /// Whether keys are for this screen: of two columns, only one is worked by keys.
    Q_PROPERTY(bool keyed READ isKeyed NOTIFY keyedChanged)

public:
    enum Column { Whole, Start, End };
    Q_ENUM(Column)

    /// For an item, or for an object that belongs to one.
    explicit StackPlace(QObject* owner);
    static StackPlace* qmlAttachedProperties(QObject* owner) { return new StackPlace(owner); }

    Column column() const { return m_column; }
    bool isKeyed() const { return m_keyed; }
    /// Null outside a stack.
    NavigationStack* stack() const { return m_stack.data(); }
    QQuickItem* page() const { return m_page.data(); }

Q_SIGNALS:
    void columnChanged();
    void keyedChanged();
    /// Screens came, went or changed their columns.
    void changed();

private:
    void find();
    void update();

    QPointer<QQuickItem> m_item;
    QPointer<NavigationStack> m_stack;
    QPointer<QQuickItem> m_page;
    Column m_column = Whole;
    bool m_keyed = true;
};

} // namespace lodestar
