// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Simulator/Body.h"
#include "Simulator/Fault.h"
#include "Simulator/Http.h"

#include <cstdint>
#include <string>

namespace lodestar::simulator
{

/// A refusal as consoles write them.
Response errorResponse(int status, const std::string& message);
Response textResponse(const std::string& contentType, std::string text);

/// An answer while faults are still working on it.
struct Draft {
    Response response;
    /// The feed that the body is, as long as it is that and may be compressed; empty otherwise.
    std::string feedType;

    void replaceBody(BodyPtr body);
    /// Sends so many bytes of the body as it stands, and then no more.
    void cut(std::uint64_t after, Ending ending);
    /// Has one fault do to the answer what it does. Redirects lead to one of the addresses: the console's own, or the
    /// next console's.
    void strike(const Fault& fault, const Request& request, const std::string& address, const std::string& nextAddress);
};

} // namespace lodestar::simulator
