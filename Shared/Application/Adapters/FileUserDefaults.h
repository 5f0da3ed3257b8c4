// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/UserDefaults.h"

#include <memory>
#include <string>
#include <vector>

namespace lodestar
{

/// User defaults in one INI file, 0600. They are answered from memory; a change is written soon after on a background
/// queue, `synchronize` and the destructor write what is pending on the calling thread. A file that cannot be read is
/// taken as empty, what can be read of a damaged one is kept, and while the file cannot be written the values live on
/// in memory.
class FileUserDefaults final : public UserDefaults
{
public:
    /// Missing folders are made, each 0700, with the first write.
    explicit FileUserDefaults(const std::string& path);
    ~FileUserDefaults() override;
    FileUserDefaults(const FileUserDefaults&) = delete;
    FileUserDefaults& operator=(const FileUserDefaults&) = delete;

    bool boolForKey(const std::string& key) const override;
    void setBool(bool value, const std::string& key) override;
    /// Nothing when the key's value is a boolean.
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
