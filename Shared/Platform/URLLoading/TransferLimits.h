// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>

namespace lodestar
{

/// The device's memory in bytes; a modest guess where the system does not say.
std::size_t deviceMemory();

/// The limits that protect the device from a hostile server. Process-wide. Set them before the first transfer; only
/// tests change them later.
///
/// Bodies share `heldBytes`, packed and unpacked, until their readers are done with them (see HeldBytes). So one body
/// may have nearly all of it while the others need little: 184 MB of 192. A body that finds no room waits for room, and
/// is refused when none can come. A packed body needs room for its packed and its unpacked form at once.
struct TransferLimits {
    std::size_t headerBytes = 256UL * 1024; ///< all header bytes of one transfer, redirects included
    std::size_t heldBytes;                  ///< all bodies together: a sixteenth of the device's memory, 192 MB at most
    std::size_t bodyBytes;                  ///< one body, as it comes or unpacked: all but a 24th of `heldBytes`
    /// Bytes besides headers and body that a transfer may receive, on top of one for each byte of headers and body.
    /// Such bytes are chunk sizes and extensions, which libcurl drops unseen, and what TLS adds.
    std::size_t framingBytes = 1024UL * 1024;
    /// All connections together, 600: in use, free and being made. Each takes some 130 KB with its handle and its
    /// buffers. A server without a connection may always have one.
    std::size_t connections;
    /// The same limit for a slow network, where more connections save time: a 32nd of the device's memory, 3,000 at
    /// most.
    std::size_t connectionsOfSlowNetwork;
    int redirects = 20; ///< how many hops are followed; the response after that is the answer
    /// A transfer's total time is its idle limit times this number, so that a server that sends slowly cannot hold the
    /// transfer for ever.
    int totalTimeFactor = 1;

    static TransferLimits ofDevice(std::size_t memory);
    static TransferLimits& shared();
    bool operator==(const TransferLimits&) const = default;
};

} // namespace lodestar
