// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>

namespace lodestar
{

/// One document's share of the memory that all documents of the process may take together: an eighth of the device's
/// memory, at most 512 MB, first come, first served. An answer that exceeds the limit is refused as too large. Feeds
/// leave a last bit of room for small answers, such as a logon's. Gives its share back on destruction.
class KeptBytes
{
public:
    KeptBytes() = default;
    ~KeptBytes();
    KeptBytes(const KeptBytes&) = delete;
    KeptBytes& operator=(const KeptBytes&) = delete;

    /// Changes the share. False, with the share unchanged, when there is no room. Any thread, one at a time.
    bool resize(std::size_t bytes);
    std::size_t size() const { return m_bytes; }

    /// The function is called on any thread, each time a document has given its share back.
    static void setGivenBack(void (*told)());
    static std::size_t total();
    static std::size_t limit();

private:
    std::size_t m_bytes = 0;
};

} // namespace lodestar
