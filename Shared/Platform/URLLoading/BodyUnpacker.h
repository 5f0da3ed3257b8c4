// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Error.h"
#include "Platform/URLLoading/BodyDecoder.h"
#include "Platform/URLLoading/HeldBytes.h"
#include "Platform/URLLoading/TransferLimits.h"
#include "Platform/URLLoading/URLRequest.h"

#include <functional>
#include <optional>
#include <span>

namespace lodestar
{

/// Unpacks one response's body within the limits, on its reader's thread: on the network thread, one body that unpacks
/// to a gigabyte would hold up all other transfers. One thread at a time.
class BodyUnpacker
{
public:
    using Sink = std::function<void(std::span<const char>)>;

    /// What to do when the unpacked bytes find no room. `Wait` blocks for a while; the caller must have the turn (see
    /// HeldBytes).
    enum class WithoutRoom { Refuse, Wait };

    /// The response's body must be packed in a known way. Without a claim no bytes are counted as held: for a sink that
    /// keeps nothing.
    BodyUnpacker(const URLResponse& response, std::optional<HeldBytes::Claim> claim,
                 WithoutRoom without = WithoutRoom::Refuse);

    static bool isNeeded(const URLResponse& response);

    /// False once the body is damaged or too large; `error` then tells which.
    bool unpack(std::span<const char> bytes, const Sink& sink);
    /// Call after the last bytes: the body's fault, if it has one.
    std::optional<Error> error() const;
    std::size_t size() const { return m_size; }
    /// True when `error` is a lack of room, so that another try may succeed.
    bool foundNoRoom() const { return m_foundNoRoom; }

private:
    bool hold(std::size_t bytes);
    bool take(std::span<const char> piece, const Sink& sink);

    const TransferLimits m_limits;
    BodyDecoder m_decoder;
    const std::optional<HeldBytes::Claim> m_claim;
    const WithoutRoom m_without;
    HeldBytes m_held;
    bool m_foundNoRoom = false;
    std::size_t m_size = 0;
    std::optional<Error> m_error;
};

} // namespace lodestar
