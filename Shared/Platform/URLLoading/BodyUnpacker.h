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

/// Unpacks one response's body within the limits, on its reader's side: on the network thread one body that unpacks to
/// a gigabyte would hold up all the others. One thread at a time.
class BodyUnpacker
{
public:
    using Sink = std::function<void(std::span<const char>)>;

    /// What is done when what is unpacked finds no room. Patient ones block for a while, and have the turn.
    enum class WithoutRoom { Refuse, Wait };

    /// The response's encoding is a known one. Without a claim nothing is held: for a sink that keeps nothing.
    BodyUnpacker(const URLResponse& response, std::optional<HeldBytes::Claim> claim,
                 WithoutRoom without = WithoutRoom::Refuse);

    static bool isNeeded(const URLResponse& response);

    /// False once the body is damaged or too large; `error` then says so.
    bool unpack(std::span<const char> bytes, const Sink& sink);
    /// After the last bytes: what was wrong with the body, if anything.
    std::optional<Error> error() const;
    std::size_t size() const { return m_size; }
    /// Whether `error` is a lack of room, so that another try may do.
    bool foundNoRoom() const { return m_foundNoRoom; }

private:
    bool hold(std::size_t bytes);
    bool take(std::span<const char> piece, const Sink& sink);

    const TransferLimits m_limits;
    std::optional<BodyDecoder> m_decoder;
    const std::optional<HeldBytes::Claim> m_claim;
    const WithoutRoom m_without;
    HeldBytes m_held;
    bool m_foundNoRoom = false;
    std::size_t m_size = 0;
    std::optional<Error> m_error;
};

} // namespace lodestar
