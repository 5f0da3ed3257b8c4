// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointF>
#include <QtQml/qqmlregistration.h>

namespace lodestar
{

/// Place and time of the last pointer press, for popups that open beside it. Main thread.
class LastPress : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    explicit LastPress(QObject* parent = nullptr);

    /// Whether the last input was a press, and that only a moment ago.
    Q_INVOKABLE bool isRecent() const;
    /// In points of the pressed window.
    Q_INVOKABLE QPointF position() const { return m_position; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPointF m_position;
    QElapsedTimer m_since; ///< invalid before the first press and after a key
};

} // namespace lodestar
