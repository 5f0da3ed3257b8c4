// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace lodestar
{

/// Small settings by key, kept from run to run. Implementations are thread-safe. A key is any text (console addresses
/// among them) and is kept exactly. A missing key means "no value", which differs from the empty string.
class UserDefaults
{
public:
    virtual ~UserDefaults() = default;

    virtual bool boolForKey(const std::string& key) const = 0; ///< false when absent or not a boolean
    virtual void setBool(bool value, const std::string& key) = 0;
    virtual std::optional<std::string> stringForKey(const std::string& key) const = 0;
    virtual void setString(const std::string& value, const std::string& key) = 0;
    virtual void removeObjectForKey(const std::string& key) = 0;
    virtual std::vector<std::string> allKeys() const = 0;
    /// Writes pending changes to the disk; false when that failed.
    virtual bool synchronize() = 0;

    /// The process's defaults: in memory until `install` puts the application's file-backed ones in their place. Call
    /// `install` on the main thread, before other threads run; the process then owns the object until it ends.
    static UserDefaults& standard();
    static void install(std::unique_ptr<UserDefaults> defaults);
};

} // namespace lodestar
