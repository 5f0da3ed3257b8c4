// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <memory>
#include <string>

namespace lodestar
{

/// A message as plain text: a service shows mark-up in it as text.
struct Message {
    std::string summary;
    std::string body;
};

/// The system's messages to the person, shown outside of the application's window. Main thread; no call blocks.
class MessageService
{
public:
    virtual ~MessageService() = default;
    /// Whether the system can show messages. Not known until the service answers: false until then.
    virtual bool isAvailable() const = 0;
    /// Shows the message in place of the one before.
    virtual void show(const Message& message) = 0;
    /// The function is called when the person taps a message.
    virtual void setTapped(std::function<void()> tapped) = 0;
    /// The function is called when `isAvailable` changes.
    virtual void setAvailabilityChanged(std::function<void()> changed) = 0;

    /// The process's service: one that shows nothing until `install` puts the system's in its place. Install before the
    /// handlers are set: they belong to the service.
    static MessageService& standard();
    static void install(std::unique_ptr<MessageService> service);
};

} // namespace lodestar
