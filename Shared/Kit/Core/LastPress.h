// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointF>
#include <QtQml/qqmlregistration.h>

namespace lodestar
{

/// Where the pointer pressed last, for what comes up beside it. Main thread.
class LastPress : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    explicit LastPress(QObject* parent = nullptr);

    /// Whether a press just now, and no key since, is what the program answers to.
    Q_INVOKABLE bool isRecent() const;
    /// In its window.
    Q_INVOKABLE QPointF position() const { return m_position; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPointF m_position;
    QElapsedTimer m_since; ///< invalid without a press, and after a key
};

} // namespace lodestar
