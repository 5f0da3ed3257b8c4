// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace lodestar
{

/// Makes room in an empty body for the length that a server announced. Negative when the length is unknown.
void reserveBody(std::string& body, std::int64_t expectedLength);

/// Appends a piece to a body that comes from a server. A string that outgrows its room copies all its bytes, and its
/// old and its new bytes are in memory together meanwhile. So a body that outgrows 32 MB gets room for the largest body
/// that the limits allow: such room costs addresses, and memory only where bytes come to stand. Few bodies can grow so
/// large together, since all bodies share one limit (see HeldBytes).
void appendToBody(std::string& body, std::span<const char> piece);

/// Frees a body at once. An assignment of an empty string would keep the memory.
void freeBody(std::string& body);

} // namespace lodestar
