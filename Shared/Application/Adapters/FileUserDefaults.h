// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/UserDefaults.h"

#include <memory>
#include <string>
#include <vector>

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
    FileUserDefaults(const FileUserDefaults&) = delete;
    FileUserDefaults& operator=(const FileUserDefaults&) = delete;

    bool boolForKey(const std::string& key) const override;
    void setBool(bool value, const std::string& key) override;
    /// Nothing when the key has no value, and when its value is a boolean.
    std::optional<std::string> stringForKey(const std::string& key) const override;
    void setString(const std::string& value, const std::string& key) override;
    void removeObjectForKey(const std::string& key) override;
    std::vector<std::string> allKeys() const override;
    bool synchronize() override;

private:
    struct State;
    std::shared_ptr<State> m_state;
};

} // namespace lodestar
