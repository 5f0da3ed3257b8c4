// SPDX-License-Identifier: Apache-2.0
#include "Application/Adapters/DBusMessageService.h"

#include "Application/Adapters/SessionBus.h"
#include "Platform/Queues/DispatchQueue.h"
#include "Platform/Queues/MainQueue.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QPointer>
#include <QVariantMap>

#include <utility>

namespace lodestar
{
namespace
{

const QString service = QStringLiteral("org.freedesktop.Notifications");
const QString path = QStringLiteral("/org/freedesktop/Notifications");
const QString openAction = QStringLiteral("default");
constexpr auto tokenVariable = "XDG_ACTIVATION_TOKEN"; ///< lets the window take the keyboard focus

// In UTF-16 units: what a notification can show at all. Hostile names are cut before, in the words.
constexpr qsizetype longestSummary = 200;
constexpr qsizetype longestBody = 500;
constexpr int lastsAsTheServiceLikes = -1;

} // namespace

DBusMessageService::DBusMessageService() = default;
DBusMessageService::~DBusMessageService() = default;

void DBusMessageService::follow()
{
    if (!hasSessionBus()) {
        return;
    }
    DispatchQueue::globalBackground().async([self = QPointer<DBusMessageService>(this)] {
        const QDBusConnection bus = QDBusConnection::sessionBus();
        MainQueue::shared().async([self, bus] {
            if (self) {
                self->follow(bus);
            }
        });
    });
}

void DBusMessageService::follow(const QDBusConnection& bus)
{
    if (!bus.isConnected()) {
        return;
    }
    m_bus = std::make_unique<QDBusConnection>(bus);
    // Matches any sender: to name one, Qt would have to wait for the bus.
    const auto listen = [this](const QString& signal, const char* slot) {
        if (!m_bus->connect({}, path, service, signal, this, slot)) {
            qWarning("Taps on messages will not be heard");
        }
    };
    listen(QStringLiteral("ActionInvoked"), SLOT(actionInvoked(uint, QString)));
    listen(QStringLiteral("ActivationToken"), SLOT(tokenGiven(uint, QString)));
    listen(QStringLiteral("NotificationClosed"), SLOT(notificationClosed(uint, uint)));
    m_bus->connect({}, QStringLiteral("/org/freedesktop/DBus"), QStringLiteral("org.freedesktop.DBus"),
                   QStringLiteral("NameOwnerChanged"), {service}, QStringLiteral("sss"), this,
                   SLOT(ownerChanged(QString, QString, QString)));
    askCapabilities();
}

void DBusMessageService::askCapabilities()
{
    // Starts a service that the desktop starts on demand.
    const QDBusMessage ask = QDBusMessage::createMethodCall(service, path, service, QStringLiteral("GetCapabilities"));
    auto* const answer = new QDBusPendingCallWatcher(m_bus->asyncCall(ask), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* watcher) {
        watcher->deleteLater();
        const QList<QVariant> values = watcher->isError() ? QList<QVariant>() : watcher->reply().arguments();
        const QStringList capabilities = values.isEmpty() ? QStringList() : values.front().toStringList();
        m_readsMarkup = capabilities.contains(QStringLiteral("body-markup"));
        m_takesActions = capabilities.contains(QStringLiteral("actions"));
        setAvailable(!watcher->isError());
    });
}

void DBusMessageService::setAvailable(bool available)
{
    if (std::exchange(m_isAvailable, available) != available && m_changed) {
        m_changed();
    }
}

void DBusMessageService::ownerChanged(const QString& name, const QString& /*before*/, const QString& now)
{
    if (name != service) {
        return;
    }
    m_shown = 0; // another service counts anew
    if (now.isEmpty()) {
        setAvailable(false);
    } else {
        askCapabilities();
    }
}

void DBusMessageService::show(const Message& message)
{
    if (!m_bus || !m_isAvailable) {
        return;
    }
    if (m_awaitsAnswer) {
        m_next = message;
    } else {
        send(message);
    }
}

void DBusMessageService::send(const Message& message)
{
    QStringList actions;
    if (m_takesActions) {
        actions << openAction << tr("Open");
    }
    const QVariantMap hints{{QStringLiteral("desktop-entry"), QStringLiteral("org.ornis.Lodestar")}};
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, service, QStringLiteral("Notify"));
    call.setArguments({QStringLiteral("Lodestar"), m_shown, QStringLiteral("org.ornis.Lodestar"),
                       plain(message.summary, longestSummary, false), plain(message.body, longestBody, m_readsMarkup),
                       actions, hints, lastsAsTheServiceLikes});
    m_awaitsAnswer = true;
    auto* const answer = new QDBusPendingCallWatcher(m_bus->asyncCall(call), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* watcher) {
        watcher->deleteLater();
        m_awaitsAnswer = false;
        const QList<QVariant> values = watcher->isError() ? QList<QVariant>() : watcher->reply().arguments();
        m_shown = values.isEmpty() ? 0 : values.front().toUInt();
        if (const auto next = std::exchange(m_next, std::nullopt)) {
            show(*next);
        }
    });
}

QString DBusMessageService::plain(const std::string& text, qsizetype length, bool escapes)
{
    QString line = QString::fromStdString(text);
    for (QChar& letter : line) {
        if (letter.isSpace()) {
            letter = u' ';
        }
    }
    line.removeIf([](QChar letter) { return letter.category() == QChar::Other_Control; });
    if (line.size() > length) {
        line.truncate(length - 1);
        if (line.back().isHighSurrogate()) {
            line.chop(1);
        }
        line += QChar(0x2026);
    }
    return escapes ? line.toHtmlEscaped() : line;
}

void DBusMessageService::actionInvoked(uint id, const QString& action)
{
    if (id != 0 && id == m_shown && action == openAction && m_tapped) {
        m_tapped();
    }
}

void DBusMessageService::tokenGiven(uint id, const QString& token)
{
    if (id != 0 && id == m_shown) {
        qputenv(tokenVariable, token.toUtf8());
    }
}

void DBusMessageService::notificationClosed(uint id, uint /*reason*/)
{
    if (id == m_shown) {
        m_shown = 0;
    }
}

} // namespace lodestar
