// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace lodestar
{

/// Whether an item has the keyboard focus and got it by the keyboard: for lists, whose focus is that of a row. Main
/// thread.
class KeyboardFocus : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem* item READ item WRITE setItem NOTIFY itemChanged)
    Q_PROPERTY(bool visual READ isVisual NOTIFY visualChanged)

public:
    using QObject::QObject;
    QQuickItem* item() const { return m_item; }
    void setItem(QQuickItem* item);
    bool isVisual() const { return m_visual; }

Q_SIGNALS:
    void itemChanged();
    void visualChanged();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void follow();

    QPointer<QQuickItem> m_item;
    bool m_isTabbing = false; ///< the last input of the item's window was Tab
    bool m_visual = false;
};

} // namespace lodestar
