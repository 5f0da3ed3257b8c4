// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace lodestar
{

/// Small settings by key. They live in memory; a derived class also keeps them from run to run. Thread-safe. A key is
/// any text (console addresses among them) and is kept exactly. A missing key means "no value", which differs from the
/// empty string.
class UserDefaults
{
public:
    UserDefaults() = default;
    virtual ~UserDefaults() = default;
    UserDefaults(const UserDefaults&) = delete;
    UserDefaults& operator=(const UserDefaults&) = delete;

    bool boolForKey(const std::string& key) const; ///< false when absent or not a boolean
    void setBool(bool value, const std::string& key);
    std::optional<std::string> stringForKey(const std::string& key) const; ///< nothing when absent or a boolean
    void setString(const std::string& value, const std::string& key);
    void removeObjectForKey(const std::string& key);
    std::vector<std::string> allKeys() const;
    /// Writes pending changes to the disk; false when that failed.
    virtual bool synchronize() { return true; }

    /// The process's defaults: in memory until `install` puts the application's file-backed ones in their place. Call
    /// `install` on the main thread, before other threads run; the process then owns the object until it ends.
    static UserDefaults& standard();
    static void install(std::unique_ptr<UserDefaults> defaults);

protected:
    using Value = std::variant<bool, std::string>;
    using Values = std::map<std::string, Value>;

    explicit UserDefaults(Values values);
    Values values() const;
    /// Called after each change, on the thread that made the change.
    virtual void didChange() {}

private:
    template <typename T>
    std::optional<T> get(const std::string& key) const;
    void set(const std::string& key, Value value);

    mutable std::mutex m_mutex;
    Values m_values;
};

} // namespace lodestar
