// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/MessageService.h"

#include <QObject>
#include <QString>

#include <memory>
#include <optional>

class QDBusConnection;
class QDBusMessage;

namespace lodestar
{

/// The desktop's notifications, org.freedesktop.Notifications on the session's bus. A service that comes later is
/// found. Main thread, which never waits.
class DBusMessageService final : public QObject, public MessageService
{
    Q_OBJECT

public:
    DBusMessageService();
    ~DBusMessageService() override;

    /// Finds the service on the session's bus, if there is one. A background queue connects, since that may take its
    /// time.
    void follow();
    void follow(const QDBusConnection& bus);

    bool isAvailable() const override { return m_isAvailable; }
    /// A message for which there is no service yet is dropped.
    void show(const Message& message) override;
    void setTapped(std::function<void()> tapped) override { m_tapped = std::move(tapped); }
    void setAvailabilityChanged(std::function<void()> changed) override { m_changed = std::move(changed); }

    /// The text as one line without control characters, cut to the length; for a service that reads mark-up, escaped.
    static QString plain(const std::string& text, qsizetype length, bool escapes);

private Q_SLOTS:
    void ownerChanged(const QString& name, const QString& before, const QString& now);
    void actionInvoked(uint id, const QString& action);
    void tokenGiven(uint id, const QString& token);
    void notificationClosed(uint id, uint reason);

private:
    void askCapabilities();
    void setAvailable(bool available);
    void send(const Message& message);

    std::unique_ptr<QDBusConnection> m_bus;
    bool m_isAvailable = false;
    bool m_readsMarkup = false;
    bool m_takesActions = false;
    uint m_shown = 0;              ///< the message that the next one replaces; 0 for none
    bool m_awaitsAnswer = false;   ///< the number of the message that was sent is not known yet
    std::optional<Message> m_next; ///< shown once it is
    std::function<void()> m_tapped;
    std::function<void()> m_changed;
};

} // namespace lodestar
