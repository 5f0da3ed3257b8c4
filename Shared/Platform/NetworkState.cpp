// SPDX-License-Identifier: Apache-2.0
#include "Platform/NetworkState.h"

#include <utility>

namespace lodestar
{
namespace
{

class UnknownNetwork final : public NetworkState
{
public:
    Connectivity connectivity() const override { return Connectivity::Unknown; }
    void setChanged(std::function<void()> /*changed*/) override {}
};

/// Never destroyed: the end of the process must not depend on the order of destructors.
std::unique_ptr<NetworkState>& standardState()
{
    static auto& state = *new std::unique_ptr<NetworkState>(std::make_unique<UnknownNetwork>());
    return state;
}

} // namespace

NetworkState& NetworkState::standard()
{
    return *standardState();
}

void NetworkState::install(std::unique_ptr<NetworkState> state)
{
    standardState() = state ? std::move(state) : std::make_unique<UnknownNetwork>();
}

} // namespace lodestar
