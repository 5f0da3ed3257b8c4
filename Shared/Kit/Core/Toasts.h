// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QBasicTimer>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

namespace lodestar
{

/// A short message over the screens, which leaves by itself: "Copied X417-2208". One for the process. Main thread.
class Toasts : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QString text READ text NOTIFY changed)
    Q_PROPERTY(bool presented READ isPresented NOTIFY changed)

public:
    static Toasts& shared();
    static Toasts* create(QQmlEngine* qml, QJSEngine* js);

    /// Shows the text for 1.6 s, in place of the one before.
    void show(const QString& text);
    void dismiss();
    /// The text shown last, also while it leaves.
    const QString& text() const { return m_text; }
    bool isPresented() const { return m_timer.isActive(); }

Q_SIGNALS:
    void changed();

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    Toasts() = default;
    QString m_text;
    QBasicTimer m_timer;
};

} // namespace lodestar
