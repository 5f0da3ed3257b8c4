// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDBusVariant>
#include <QObject>

#include <array>
#include <functional>

class QDBusConnection;

namespace lodestar
{

/// Asks the desktop's settings portal about reduced motion, contrast and the size of text, and follows changes. Without
/// a portal or a session bus, no handler is called. Main thread, which never waits.
class DesktopSettings : public QObject
{
    Q_OBJECT

public:
    /// Called at first if the desktop has such a setting, and on each change. Where it has several, one that is set is
    /// enough: desktops keep old names beside new ones, and a person sets only one of them.
    using SwitchHandler = std::function<void(bool on)>;
    /// Called likewise. A scale of 1 stands for the size of text for which the screens are drawn.
    using TextHandler = std::function<void(double scale)>;

    struct Handlers {
        SwitchHandler motionReduced;
        SwitchHandler contrastRaised;
        TextHandler textScaled;
    };

    explicit DesktopSettings(Handlers handlers, QObject* parent = nullptr);

    /// Follows the session's bus, if there is one. A background queue connects, since that may take its time.
    void follow();
    void follow(const QDBusConnection& bus);

private Q_SLOTS:
    void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void take(const QString& group, const QString& key, const QVariant& value);

    Handlers m_handlers;
    /// What the settings said last, in the order of their table. A setting that the desktop lacks is off.
    std::array<bool, 6> m_isOn{};
};

} // namespace lodestar
