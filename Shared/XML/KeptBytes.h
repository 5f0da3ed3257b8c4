// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>

namespace lodestar
{

/// A document's share of the memory that all documents of the process may take together: an eighth of the device's, at
/// most 512 MB, first come, first served. What a console sends beyond it is refused as too large; a small answer, such
/// as that of a logon, finds a last bit of room that feeds leave. Gives its share back when it is destroyed.
class KeptBytes
{
public:
    KeptBytes() = default;
    ~KeptBytes();
    KeptBytes(const KeptBytes&) = delete;
    KeptBytes& operator=(const KeptBytes&) = delete;

    /// False, with the share as it was, when there is no room. Any thread, one at a time.
    bool resize(std::size_t bytes);
    std::size_t size() const { return m_bytes; }

    static std::size_t total();
    static std::size_t limit();

private:
    std::size_t m_bytes = 0;
};

} // namespace lodestar
