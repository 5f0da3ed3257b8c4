// SPDX-License-Identifier: Apache-2.0
#include "Application/Adapters/DBusNetworkState.h"

#include "Platform/Queues/DispatchQueue.h"
#include "Platform/Queues/MainQueue.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QPointer>

#include <utility>

namespace lodestar
{
namespace
{

const QString service = QStringLiteral("org.freedesktop.NetworkManager");
const QString path = QStringLiteral("/org/freedesktop/NetworkManager");
const QString properties = QStringLiteral("org.freedesktop.DBus.Properties");

/// The least NMState with an address. Consoles may stand in a network that leads nowhere else.
constexpr uint connectedLocally = 50;
constexpr uint metered = 1;
constexpr uint probablyMetered = 3;

} // namespace

DBusNetworkState::DBusNetworkState() = default;
DBusNetworkState::~DBusNetworkState() = default;

void DBusNetworkState::follow()
{
    DispatchQueue::globalBackground().async([self = QPointer<DBusNetworkState>(this)] {
        const QDBusConnection bus = QDBusConnection::systemBus();
        MainQueue::shared().async([self, bus] {
            if (self) {
                self->follow(bus);
            }
        });
    });
}

void DBusNetworkState::follow(const QDBusConnection& bus)
{
    if (!bus.isConnected()) {
        return;
    }
    m_bus = std::make_unique<QDBusConnection>(bus);
    // Matches any sender: to name one, Qt would have to wait for the bus.
    m_bus->connect({}, QStringLiteral("/org/freedesktop/DBus"), QStringLiteral("org.freedesktop.DBus"),
                   QStringLiteral("NameOwnerChanged"), {service}, QStringLiteral("sss"), this,
                   SLOT(ownerChanged(QString, QString, QString)));
    m_bus->connect({}, path, properties, QStringLiteral("PropertiesChanged"), {service}, QStringLiteral("sa{sv}as"),
                   this, SLOT(propertiesChanged(QString, QVariantMap, QStringList)));
    ask();
}

void DBusNetworkState::ask()
{
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, properties, QStringLiteral("GetAll"));
    call.setArguments({service});
    call.setAutoStartService(false);
    auto* const answer = new QDBusPendingCallWatcher(m_bus->asyncCall(call), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* watcher) {
        watcher->deleteLater();
        const QList<QVariant> values = watcher->isError() ? QList<QVariant>() : watcher->reply().arguments();
        if (!values.isEmpty()) {
            take(qdbus_cast<QVariantMap>(values.front()));
        }
    });
}

void DBusNetworkState::ownerChanged(const QString& name, const QString& /*before*/, const QString& now)
{
    if (name != service) {
        return;
    }
    if (now.isEmpty()) {
        m_state = 0;
        m_metered = 0;
        judge();
    } else {
        ask();
    }
}

void DBusNetworkState::propertiesChanged(const QString& interface, const QVariantMap& changed,
                                         const QStringList& /*invalidated*/)
{
    if (interface == service) {
        take(changed);
    }
}

void DBusNetworkState::take(const QVariantMap& values)
{
    m_state = values.value(QStringLiteral("State"), m_state).toUInt();
    m_metered = values.value(QStringLiteral("Metered"), m_metered).toUInt();
    judge();
}

void DBusNetworkState::judge()
{
    Connectivity connectivity = Connectivity::Free;
    if (m_state == 0) {
        connectivity = Connectivity::Unknown;
    } else if (m_state < connectedLocally) {
        connectivity = Connectivity::Absent;
    } else if (m_metered == metered || m_metered == probablyMetered) {
        connectivity = Connectivity::Metered;
    }
    if (std::exchange(m_connectivity, connectivity) != connectivity && m_changed) {
        m_changed();
    }
}

} // namespace lodestar
