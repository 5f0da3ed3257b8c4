// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Simulator/Http.h"

#include <cstdint>
#include <string>

namespace lodestar::simulator
{

/// A refusal in the form that consoles use.
Response errorResponse(int status, const std::string& message);
Response textResponse(const std::string& contentType, std::string text);
/// The answer to a logon; without a key it has no element for one.
Response logonResponse(const std::string& key);

/// An answer that faults may still change.
struct Draft {
    Response response;
    /// The type of the feed that the body holds, while that body may still be compressed; empty otherwise.
    std::string feedType;

    void replace(Response other);
    void replaceBody(BodyPtr body);
    /// The body is compressed already.
    void replacePacked(BodyPtr body);
    /// Sends this many bytes of the present body and no more.
    void cut(std::uint64_t after, Ending ending);
};

} // namespace lodestar::simulator
