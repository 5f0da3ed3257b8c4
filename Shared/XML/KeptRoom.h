// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/URLLoading/URLRequest.h"

#include <cstddef>
#include <functional>
#include <memory>

namespace lodestar
{

/// Room for feeds that will replace a console's earlier ones. Until then, old and new feeds together take twice the
/// memory. When that is more than all documents may take together (see KeptBytes), consoles wait for each other instead
/// of losing feeds: persons' requests first, the others in order. Thread-safe.
class KeptRoom
{
public:
    /// The room promised to one console. Given back on destruction.
    class Share
    {
    public:
        explicit Share(std::size_t bytes) : m_bytes(bytes) {}
        ~Share();
        Share(const Share&) = delete;
        Share& operator=(const Share&) = delete;
        /// Moves so many bytes out of the promise: a document's KeptBytes counts them from now on.
        void didKeep(std::size_t bytes);

    private:
        std::size_t m_bytes;
    };
    using Start = std::function<void(std::shared_ptr<Share>)>;

    /// Calls the function once there is room: at once, or later on a thread of the pool. While no other console has a
    /// share, nobody waits: what does not fit then will not fit later either.
    static void whenThereIs(std::size_t bytes, Urgency urgency, Start start);
};

} // namespace lodestar
