// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Simulator/Body.h"
#include "Simulator/Fault.h"
#include "Simulator/Http.h"

#include <cstdint>
#include <string>

namespace lodestar::simulator
{

/// A refusal in the form that consoles use.
Response errorResponse(int status, const std::string& message);
Response textResponse(const std::string& contentType, std::string text);

/// An answer that faults may still change.
struct Draft {
    Response response;
    /// The type of the feed that the body holds, while that body may still be compressed; empty otherwise.
    std::string feedType;

    void replaceBody(BodyPtr body);
    /// Sends this many bytes of the present body and no more.
    void cut(std::uint64_t after, Ending ending);
    /// Applies one fault to the answer. A redirect leads to `address`, the console's own, or to `nextAddress`, the next
    /// console's.
    void strike(const Fault& fault, const Request& request, const std::string& address, const std::string& nextAddress);
};

} // namespace lodestar::simulator
