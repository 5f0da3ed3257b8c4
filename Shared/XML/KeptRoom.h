// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/URLLoading/URLRequest.h"

#include <cstddef>
#include <functional>
#include <memory>

namespace lodestar
{

/// Room for feeds that are to take the place of a console's earlier ones. Until they do, old and new take twice the
/// memory; where that is more than all documents may take together (see KeptBytes), consoles wait for each other
/// instead of losing feeds: persons' first, otherwise as they come. Thread-safe.
class KeptRoom
{
public:
    /// What has been promised to one console. Given back when it is destroyed.
    class Share
    {
    public:
        explicit Share(std::size_t bytes) : m_bytes(bytes) {}
        ~Share();
        Share(const Share&) = delete;
        Share& operator=(const Share&) = delete;
        /// So many bytes are counted as kept from now on, and promised no more.
        void didKeep(std::size_t bytes);

    private:
        std::size_t m_bytes;
    };
    using Start = std::function<void(std::shared_ptr<Share>)>;

    /// Calls the function once there is room: at once, or later on a thread of the pool. Nobody waits while nobody else
    /// has a share: what then does not fit will not fit later either.
    static void whenThereIs(std::size_t bytes, Urgency urgency, Start start);
    /// To be called when kept bytes have gone.
    static void moreIsFree();
};

} // namespace lodestar
