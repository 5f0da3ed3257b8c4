// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Result.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace lodestar
{

/// Where a listener listens: an address of this machine that no other machine reaches, and a port.
struct ListenAddress {
    std::string host = "127.0.0.1"; ///< in numbers
    std::uint16_t port = 0;         ///< 0: one that is free

    /// Reads "9750", "127.0.0.1:9750", "localhost:9750" or "[::1]:9750". Fails with a sentence for a person for any
    /// other text, an address that other machines reach included: what is served is neither encrypted nor guarded.
    static Result<ListenAddress> of(const std::string& text);
    /// "127.0.0.1:9750", "[::1]:9750".
    std::string text() const;
};

/// Serves one text at /metrics by plain HTTP. It answers GET and HEAD, one request a connection. A request's head has
/// little room and little time, and so has its answer; there are at most `mostConnections` at once. Nobody who dawdles
/// holds up others for longer than that time. One thread of its own; made and destroyed on the main thread, which must
/// run its loop.
class Listener
{
public:
    /// What is served now; null while there is nothing. Called on the listener's thread.
    using Text = std::function<std::shared_ptr<const std::string>()>;
    static constexpr unsigned mostConnections = 64;

    /// Fails with a sentence for a person.
    static Result<std::unique_ptr<Listener>> open(const ListenAddress& address, Text text);
    ~Listener();
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

    /// With the port that it has.
    const ListenAddress& address() const { return m_address; }

private:
    struct State;
    Listener(ListenAddress address, std::shared_ptr<State> state);

    const ListenAddress m_address;
    const std::shared_ptr<State> m_state;
};

} // namespace lodestar
