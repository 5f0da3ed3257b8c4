// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Queues/DispatchQueue.h"
#include "Platform/UserDefaults.h"

#include <atomic>
#include <cstdint>

namespace lodestar
{

/// User defaults in one INI file, mode 0600. Reads are answered from memory. A background queue writes a change soon
/// after it is made; `synchronize` and the destructor write pending changes on the calling thread. A file that cannot
/// be read counts as empty; of a damaged file, whatever can be read is kept. While the file cannot be written, the
/// values live on in memory.
class FileUserDefaults final : public UserDefaults
{
public:
    /// The first write makes missing folders, each with mode 0700.
    explicit FileUserDefaults(const std::string& path);
    ~FileUserDefaults() override;
    bool synchronize() override;

protected:
    void didChange() override;

private:
    const std::string m_path;
    const DispatchQueue m_queue{"lodestar.user-defaults", DispatchQueue::Kind::Serial};
    std::mutex m_writeMutex; ///< one writer at a time
    std::atomic<std::uint64_t> m_generation = 0;
    std::uint64_t m_writtenGeneration = 0;
    bool m_failing = false; ///< so that the log tells of a full disk once
    std::atomic<bool> m_writeQueued = false;
};

} // namespace lodestar
