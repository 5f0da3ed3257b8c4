// SPDX-License-Identifier: Apache-2.0
#include "Platform/URLLoading/BodyMemory.h"

#include "Platform/URLLoading/TransferLimits.h"

#include <algorithm>
#include <new>

namespace lodestar
{

namespace
{

// The most memory to reserve on the strength of a server's Content-Length.
constexpr std::size_t trustedLength = 32UL * 1024 * 1024;

} // namespace

void reserveBody(std::string& body, std::int64_t expectedLength)
{
    if (expectedLength > 0) {
        body.reserve(static_cast<std::size_t>(std::min<std::int64_t>(expectedLength, trustedLength)));
    }
}

void appendToBody(std::string& body, std::span<const char> piece)
{
    const std::size_t size = body.size() + piece.size();
    if (size > body.capacity() && size > trustedLength) {
        try {
            body.reserve(std::max(size, TransferLimits::shared().bodyBytes));
        } catch (const std::bad_alloc&) {
            // A system that counts addresses as memory: the body grows as it comes, or fails then.
        }
    }
    body.append(piece.data(), piece.size());
}

void freeBody(std::string& body)
{
    std::string().swap(body);
}

} // namespace lodestar
