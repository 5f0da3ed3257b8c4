// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <memory>

namespace lodestar
{

/// What the system says of the network. Main thread; no call blocks.
class NetworkState
{
public:
    enum class Connectivity {
        Unknown, ///< nobody knows: the system has no network manager
        Absent,
        Metered,
        Free
    };
    virtual ~NetworkState() = default;
    virtual Connectivity connectivity() const = 0;
    virtual void setChanged(std::function<void()> changed) = 0;

    /// The process's state: `Unknown` until `install` puts the system's in its place. Install before the handler is
    /// set.
    static NetworkState& standard();
    static void install(std::unique_ptr<NetworkState> state);
};

} // namespace lodestar
