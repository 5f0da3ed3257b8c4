// SPDX-License-Identifier: Apache-2.0
#include "Feedback/SessionIdentifier.h"

#include <fmt/core.h>

#include <random>

namespace lodestar
{

const std::string& feedbackSessionIdentifier()
{
    // A random number, not the time: it identifies the run and tells nothing about the device.
    static const std::string identifier = [] {
        std::random_device chance;
        return fmt::format("{:08x}{:08x}", chance(), chance());
    }();
    return identifier;
}

} // namespace lodestar
