// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace lodestar
{

/// Tells whether libxml2 was refused memory on this thread since the watch began. The library itself does not always:
/// a name that it could not keep is to it a name that is not there, and in recovery it goes on with less.
///
/// Installs itself as the library's allocator, on the system's own, when the first watch is made: no other thread of
/// the process may be parsing then. One watch a thread at a time.
class XMLMemoryWatch
{
public:
    XMLMemoryWatch();
    bool ranOut() const;
};

} // namespace lodestar
