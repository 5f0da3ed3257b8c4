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

#include <array>
#include <utility>

namespace lodestar
{
namespace
{

const QString portal = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString settings = QStringLiteral("org.freedesktop.portal.Settings");

/// Desktops name the setting for reduced motion differently; there is one row for each name.
struct MotionSetting {
    const char* group;
    const char* key;
    bool (*isReduced)(const QVariant&);
};
constexpr std::array<MotionSetting, 3> motionSettings = {{
    {"org.freedesktop.appearance", "reduced-motion", [](const QVariant& value) { return value.toUInt() == 1; }},
    {"org.gnome.desktop.interface", "enable-animations", [](const QVariant& value) { return !value.toBool(); }},
    {"org.kde.kdeglobals.KDE", "AnimationDurationFactor",
     [](const QVariant& value) {
         bool isNumber = false;
         const double factor = value.toDouble(&isNumber);
         return isNumber && factor <= 0;
     }},
}};

/// Only some desktops have this setting in their portal. It scales text alone, not what else is drawn.
constexpr QLatin1String textGroup("org.gnome.desktop.interface");
constexpr QLatin1String textKey("text-scaling-factor");

} // namespace

DesktopSettings::DesktopSettings(MotionHandler motionReduced, TextHandler textScaled, QObject* parent)
    : QObject(parent), m_motionReduced(std::move(motionReduced)), m_textScaled(std::move(textScaled))
{
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
    for (const MotionSetting& each : motionSettings) {
        groups << QString::fromLatin1(each.group);
    }
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
    for (const MotionSetting& each : motionSettings) {
        if (group == QLatin1String(each.group) && key == QLatin1String(each.key)) {
            m_motionReduced(each.isReduced(value));
        }
    }
    bool isNumber = false;
    const double scale = group == textGroup && key == textKey ? value.toDouble(&isNumber) : 0;
    if (isNumber) {
        m_textScaled(scale);
    }
}

} // namespace lodestar
