// SPDX-License-Identifier: Apache-2.0
#include "Application/Adapters/SecretService.h"

#include "Application/Adapters/SessionBus.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QMap>

namespace lodestar
{
namespace
{

using Attributes = QMap<QString, QString>;

constexpr auto serviceName = "org.freedesktop.secrets";
constexpr auto rootPath = "/org/freedesktop/secrets";

/// On this desktop the keychain's library keeps items in a wallet, not in the secret service.
bool isWalletDesktop()
{
    return qgetenv("XDG_CURRENT_DESKTOP").contains("KDE") || qEnvironmentVariableIsSet("KDE_FULL_SESSION");
}

/// A connection to the session's bus, for one question.
class Bus
{
public:
    explicit Bus(std::chrono::milliseconds limit)
        : m_limit(limit), m_bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, name()))
    {
    }
    ~Bus() { QDBusConnection::disconnectFromBus(name()); }
    Bus(const Bus&) = delete;
    Bus& operator=(const Bus&) = delete;

    bool isConnected() const { return m_bus.isConnected(); }
    QDBusMessage call(const QString& path, const QString& interface, const QString& method,
                      const QVariantList& arguments) const
    {
        QDBusMessage message = QDBusMessage::createMethodCall(QLatin1String(serviceName), path, interface, method);
        message.setArguments(arguments);
        return m_bus.call(message, QDBus::Block, static_cast<int>(m_limit.count()));
    }

private:
    static QString name() { return QStringLiteral("lodestar-keychain"); }

    const std::chrono::milliseconds m_limit;
    const QDBusConnection m_bus;
};

SecretAccess accessOf(const QDBusMessage& failure)
{
    const QString name = failure.errorName();
    const bool isNobodyThere = name.startsWith(QLatin1String("org.freedesktop.DBus.Error.Spawn")) ||
                               name == QLatin1String("org.freedesktop.DBus.Error.ServiceUnknown") ||
                               name == QLatin1String("org.freedesktop.DBus.Error.NameHasNoOwner") ||
                               name == QLatin1String("org.freedesktop.DBus.Error.Disconnected");
    return isNobodyThere ? SecretAccess::NoService : SecretAccess::Unknown;
}

/// Whether a new item can be kept without a prompt: the default collection must exist and be unlocked.
SecretAccess accessOfDefaultCollection(const Bus& bus)
{
    const QDBusMessage alias = bus.call(QLatin1String(rootPath), QStringLiteral("org.freedesktop.Secret.Service"),
                                        QStringLiteral("ReadAlias"), {QStringLiteral("default")});
    if (alias.type() != QDBusMessage::ReplyMessage || alias.arguments().isEmpty()) {
        return accessOf(alias);
    }
    const QString collection = alias.arguments().constFirst().value<QDBusObjectPath>().path();
    if (collection == QLatin1String("/")) {
        return SecretAccess::Locked;
    }
    const QDBusMessage locked =
        bus.call(collection, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"),
                 {QStringLiteral("org.freedesktop.Secret.Collection"), QStringLiteral("Locked")});
    if (locked.type() != QDBusMessage::ReplyMessage || locked.arguments().isEmpty()) {
        return accessOf(locked);
    }
    return locked.arguments().constFirst().value<QDBusVariant>().variant().toBool() ? SecretAccess::Locked
                                                                                    : SecretAccess::Free;
}

SecretAccess accessOfItem(const Bus& bus, const SecretQuestion& question)
{
    qDBusRegisterMetaType<Attributes>();
    // The attributes under which the keychain's library keeps an item.
    const Attributes attributes{{QStringLiteral("user"), question.account},
                                {QStringLiteral("server"), question.service}};
    const QDBusMessage found = bus.call(QLatin1String(rootPath), QStringLiteral("org.freedesktop.Secret.Service"),
                                        QStringLiteral("SearchItems"), {QVariant::fromValue(attributes)});
    if (found.type() != QDBusMessage::ReplyMessage || found.arguments().size() < 2) {
        return accessOf(found);
    }
    const auto count = [&](qsizetype index) {
        return qdbus_cast<QList<QDBusObjectPath>>(found.arguments().at(index)).size();
    };
    if (count(0) > 0) {
        return SecretAccess::Free;
    }
    return count(1) > 0 ? SecretAccess::Locked : SecretAccess::NoItem;
}

} // namespace

SecretAccess secretAccess(const SecretQuestion& question, std::chrono::milliseconds limit)
{
    if (isWalletDesktop()) {
        return SecretAccess::Unknown;
    }
    if (!question.mayPrompt && !hasSessionBus()) {
        return SecretAccess::NoService;
    }
    const Bus bus(limit);
    if (!bus.isConnected()) {
        return SecretAccess::NoService;
    }
    const SecretAccess item = accessOfItem(bus, question);
    const bool needsPlace = question.writes && (item == SecretAccess::NoItem || item == SecretAccess::Free);
    return needsPlace ? accessOfDefaultCollection(bus) : item;
}

} // namespace lodestar
