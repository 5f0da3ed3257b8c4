// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDBusVariant>
#include <QObject>

#include <functional>

class QDBusConnection;

namespace lodestar
{

/// What the desktop's settings say about motion, asked through its settings portal and followed. A system without a
/// portal, or without a session bus, says nothing. Main thread, which never waits.
class DesktopSettings : public QObject
{
    Q_OBJECT

public:
    /// Told each time that the answer changes, and at first if there is one.
    using MotionHandler = std::function<void(bool reduced)>;

    explicit DesktopSettings(MotionHandler motionReduced, QObject* parent = nullptr);

    /// Of the session's bus, if there is one. Connecting, which may take its time, is left to a background queue.
    void follow();
    void follow(const QDBusConnection& bus);

private Q_SLOTS:
    void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void take(const QString& group, const QString& key, const QVariant& value);
    MotionHandler m_motionReduced;
};

} // namespace lodestar
