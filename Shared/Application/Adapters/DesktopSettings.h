// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDBusVariant>
#include <QObject>

#include <functional>

class QDBusConnection;

namespace lodestar
{

/// Asks the desktop's settings portal about reduced motion and the size of text, and follows changes. Without a portal
/// or a session bus, neither handler is called. Main thread, which never waits.
class DesktopSettings : public QObject
{
    Q_OBJECT

public:
    /// Called at first if the desktop has the setting, and on each change.
    using MotionHandler = std::function<void(bool reduced)>;
    /// Called likewise. A scale of 1 stands for the size of text for which the screens are drawn.
    using TextHandler = std::function<void(double scale)>;

    DesktopSettings(MotionHandler motionReduced, TextHandler textScaled, QObject* parent = nullptr);

    /// Follows the session's bus, if there is one. A background queue connects, since that may take its time.
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
