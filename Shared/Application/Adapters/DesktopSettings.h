// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDBusVariant>
#include <QObject>

#include <functional>

class QDBusConnection;

namespace lodestar
{

/// What the desktop's settings say about motion and the size of text, asked through its settings portal and followed. A
/// system without a portal, or without a session bus, says nothing. Main thread, which never waits.
class DesktopSettings : public QObject
{
    Q_OBJECT

public:
    /// Told each time that the answer changes, and at first if there is one.
    using MotionHandler = std::function<void(bool reduced)>;
    /// 1 for text as large as everything is drawn for.
    using TextHandler = std::function<void(double scale)>;

    DesktopSettings(MotionHandler motionReduced, TextHandler textScaled, QObject* parent = nullptr);

    /// Of the session's bus, if there is one. Connecting, which may take its time, is left to a background queue.
    void follow();
    void follow(const QDBusConnection& bus);

private Q_SLOTS:
    void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void take(const QString& group, const QString& key, const QVariant& value);
    MotionHandler m_motionReduced;
    TextHandler m_textScaled;
};

} // namespace lodestar
