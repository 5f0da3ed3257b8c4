// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/NetworkState.h"

#include <QObject>
#include <QVariantMap>

#include <memory>

class QDBusConnection;

namespace lodestar
{

/// What NetworkManager on the system's bus says; `Unknown` while there is none. Main thread, which never waits.
class DBusNetworkState final : public QObject, public NetworkState
{
    Q_OBJECT

public:
    DBusNetworkState();
    ~DBusNetworkState() override;

    /// Follows the system's bus. A background queue connects, since that may take its time.
    void follow();
    void follow(const QDBusConnection& bus);

    Connectivity connectivity() const override { return m_connectivity; }
    void setChanged(std::function<void()> changed) override { m_changed = std::move(changed); }

private Q_SLOTS:
    void ownerChanged(const QString& name, const QString& before, const QString& now);
    void propertiesChanged(const QString& interface, const QVariantMap& properties, const QStringList& invalidated);

private:
    void ask();
    void take(const QVariantMap& properties);
    void judge();

    std::unique_ptr<QDBusConnection> m_bus;
    uint m_state = 0;   ///< NMState; 0 when unknown
    uint m_metered = 0; ///< NMMetered; 0 when unknown
    Connectivity m_connectivity = Connectivity::Unknown;
    std::function<void()> m_changed;
};

} // namespace lodestar
