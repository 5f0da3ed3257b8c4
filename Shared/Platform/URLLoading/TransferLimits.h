// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>

namespace lodestar
{

/// The memory of the device in bytes; a modest guess where the system does not say.
std::size_t deviceMemory();

/// What protects the device from a hostile server. Process-wide; set before the first transfer, tests excepted.
///
/// Bodies share what transfers may hold, as they come and unpacked, until their readers are done with them (how, see
/// HeldBytes). So one body may have nearly all of it while the others need little: 184 MB of 192. A body that finds no
/// room waits for it, and is refused when none can come. A packed body needs room for both its forms at once.
struct TransferLimits {
    std::size_t headerBytes = 256UL * 1024; ///< all header bytes of one transfer, redirects included
    std::size_t heldBytes;                  ///< all bodies together: a sixteenth of the device's memory, 192 MB at most
    std::size_t bodyBytes;                  ///< one body, as it comes or unpacked: all but a 24th of `heldBytes`
    /// What comes beside headers and body, over as many bytes as those are: the sizes and extensions of chunks, which
    /// libcurl drops unseen, and what TLS adds.
    std::size_t framingBytes = 1024UL * 1024;
    /// All connections together, 600: in use, free and being made. Each takes some 130 KB with its handle and its
    /// buffers. A server that has none may always have one.
    std::size_t connections;
    /// The same where the network is slow, and more of them save time: a 32nd of the device's memory, 3,000 at most.
    std::size_t connectionsOfSlowNetwork;
    int redirects = 20; ///< hops followed; the last response is then the answer
    /// A transfer's total time is its idle limit times this, so that a trickling server cannot hold it for ever.
    int totalTimeFactor = 1;

    static TransferLimits ofDevice(std::size_t memory);
    static TransferLimits& shared();
};

} // namespace lodestar
