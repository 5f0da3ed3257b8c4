// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QBasicTimer>
#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

namespace lodestar
{

/// The name of the button over which the pointer rests, for buttons that show only a picture. One for the process. Main
/// thread.
class Tips : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QString text READ text NOTIFY changed)
    Q_PROPERTY(QQuickItem* button READ button NOTIFY changed)
    Q_PROPERTY(bool presented READ isPresented NOTIFY changed)

public:
    static Tips& shared();
    static Tips* create(QQmlEngine* qml, QJSEngine* js);

    /// The pointer came over the button. The tip comes when it has rested there for 0.6 s.
    Q_INVOKABLE void enter(QQuickItem* button, const QString& text);
    /// The pointer left the button, or pressed it.
    Q_INVOKABLE void leave(QQuickItem* button);

    /// The text and the button shown last, also while the tip leaves.
    const QString& text() const { return m_text; }
    QQuickItem* button() const { return m_button; }
    bool isPresented() const { return m_presented && m_button; }

Q_SIGNALS:
    void changed();

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    Tips() = default;
    QString m_waitingText;
    QPointer<QQuickItem> m_waiting;
    QString m_text;
    QPointer<QQuickItem> m_button;
    bool m_presented = false;
    QBasicTimer m_timer;
};

} // namespace lodestar
