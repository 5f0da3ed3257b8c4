// SPDX-License-Identifier: Apache-2.0
#include "Application/Adapters/DesktopSettings.h"

#include "Application/Adapters/SessionBus.h"
#include "Platform/Queues/DispatchQueue.h"
#include "Platform/Queues/MainQueue.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QMap>
#include <QPointer>
#include <QVariantMap>

#include <algorithm>
#include <array>
#include <tuple>
#include <utility>

namespace lodestar
{
namespace
{

const QString portal = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString settings = QStringLiteral("org.freedesktop.portal.Settings");

enum class Wish { LessMotion, MoreContrast };

/// Desktops name these settings differently; there is one row for each name.
struct Switch {
    Wish wish;
    const char* group;
    const char* key;
    bool (*isOn)(const QVariant&);
};
constexpr std::array<Switch, 6> switches = {{
    {Wish::LessMotion, "org.freedesktop.appearance", "reduced-motion",
     [](const QVariant& value) { return value.toUInt() == 1; }},
    {Wish::LessMotion, "org.gnome.desktop.interface", "enable-animations",
     [](const QVariant& value) { return !value.toBool(); }},
    {Wish::LessMotion, "org.kde.kdeglobals.KDE", "AnimationDurationFactor",
     [](const QVariant& value) {
         bool isNumber = false;
         const double factor = value.toDouble(&isNumber);
         return isNumber && factor <= 0;
     }},
    {Wish::MoreContrast, "org.freedesktop.appearance", "contrast",
     [](const QVariant& value) { return value.toUInt() == 1; }},
    {Wish::MoreContrast, "org.gnome.desktop.a11y.interface", "high-contrast",
     [](const QVariant& value) { return value.toBool(); }},
    {Wish::MoreContrast, "org.gnome.desktop.interface", "gtk-theme",
     [](const QVariant& value) { return value.toString().startsWith(QLatin1String("HighContrast")); }},
}};

/// Only some desktops have this setting in their portal. It scales text alone, not what else is drawn.
constexpr QLatin1String textGroup("org.gnome.desktop.interface");
constexpr QLatin1String textKey("text-scaling-factor");

} // namespace

DesktopSettings::DesktopSettings(Handlers handlers, QObject* parent) : QObject(parent), m_handlers(std::move(handlers))
{
    static_assert(std::tuple_size_v<decltype(m_isOn)> == switches.size());
}

void DesktopSettings::follow()
{
    if (!hasSessionBus()) {
        return;
    }
    DispatchQueue::globalBackground().async([self = QPointer<DesktopSettings>(this)] {
        const QDBusConnection bus = QDBusConnection::sessionBus();
        MainQueue::shared().async([self, bus] {
            if (self) {
                self->follow(bus);
            }
        });
    });
}

void DesktopSettings::follow(const QDBusConnection& bus)
{
    QDBusConnection connection = bus;
    if (!connection.isConnected()) {
        return;
    }
    // Qt finds a slot by the names of its parameters' types, and knows QDBusVariant by name only once it is registered.
    qRegisterMetaType<QDBusVariant>();
    // Matches any sender: to name the portal, Qt would have to wait for the bus.
    if (!connection.connect({}, path, settings, QStringLiteral("SettingChanged"), this,
                            SLOT(settingChanged(QString, QString, QDBusVariant)))) {
        qWarning("Changes of the desktop's settings will not be heard");
    }
    QStringList groups;
    for (const Switch& each : switches) {
        groups << QString::fromLatin1(each.group);
    }
    groups.removeDuplicates();
    QDBusMessage ask = QDBusMessage::createMethodCall(portal, path, settings, QStringLiteral("ReadAll"));
    ask.setArguments({groups});
    auto* const answer = new QDBusPendingCallWatcher(connection.asyncCall(ask), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* watcher) {
        watcher->deleteLater();
        const QList<QVariant> values = watcher->isError() ? QList<QVariant>() : watcher->reply().arguments();
        if (values.isEmpty() || watcher->reply().signature() != QLatin1String("a{sa{sv}}")) {
            return;
        }
        const auto all = qdbus_cast<QMap<QString, QVariantMap>>(values.front());
        for (auto group = all.begin(); group != all.end(); ++group) {
            for (auto value = group->begin(); value != group->end(); ++value) {
                take(group.key(), value.key(), *value);
            }
        }
    });
}

void DesktopSettings::settingChanged(const QString& group, const QString& key, const QDBusVariant& value)
{
    take(group, key, value.variant());
}

void DesktopSettings::take(const QString& group, const QString& key, const QVariant& value)
{
    const auto* const changed = std::find_if(switches.begin(), switches.end(), [&](const Switch& each) {
        return group == QLatin1String(each.group) && key == QLatin1String(each.key);
    });
    if (changed != switches.end()) {
        m_isOn[static_cast<std::size_t>(changed - switches.begin())] = changed->isOn(value);
        bool isOn = false;
        for (std::size_t index = 0; index < switches.size(); ++index) {
            isOn = isOn || (switches[index].wish == changed->wish && m_isOn[index]);
        }
        (changed->wish == Wish::LessMotion ? m_handlers.motionReduced : m_handlers.contrastRaised)(isOn);
    }
    bool isNumber = false;
    const double scale = group == textGroup && key == textKey ? value.toDouble(&isNumber) : 0;
    if (isNumber) {
        m_handlers.textScaled(scale);
    }
}

} // namespace lodestar
