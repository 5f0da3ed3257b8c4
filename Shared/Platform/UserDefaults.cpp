// SPDX-License-Identifier: Apache-2.0
#include "Platform/UserDefaults.h"

#include <map>
#include <mutex>
#include <utility>
#include <variant>

namespace lodestar
{

namespace
{

class MemoryUserDefaults final : public UserDefaults
{
public:
    bool boolForKey(const std::string& key) const override { return valueOf<bool>(key).value_or(false); }

    void setBool(bool value, const std::string& key) override
    {
        const std::lock_guard lock(m_mutex);
        m_values.insert_or_assign(key, value);
    }

    std::optional<std::string> stringForKey(const std::string& key) const override { return valueOf<std::string>(key); }

    void setString(const std::string& value, const std::string& key) override
    {
        const std::lock_guard lock(m_mutex);
        m_values.insert_or_assign(key, value);
    }

    void removeObjectForKey(const std::string& key) override
    {
        const std::lock_guard lock(m_mutex);
        m_values.erase(key);
    }

    std::vector<std::string> allKeys() const override
    {
        const std::lock_guard lock(m_mutex);
        std::vector<std::string> keys;
        keys.reserve(m_values.size());
        for (const auto& [key, value] : m_values) {
            keys.push_back(key);
        }
        return keys;
    }

    bool synchronize() override { return true; }

private:
    template <typename Value>
    std::optional<Value> valueOf(const std::string& key) const
    {
        const std::lock_guard lock(m_mutex);
        const auto found = m_values.find(key);
        const Value* value = found == m_values.end() ? nullptr : std::get_if<Value>(&found->second);
        return value == nullptr ? std::nullopt : std::optional(*value);
    }

    mutable std::mutex m_mutex;
    std::map<std::string, std::variant<bool, std::string>> m_values;
};

/// Never destroyed: workers may still read settings while the process ends.
std::unique_ptr<UserDefaults>& standardDefaults()
{
    static auto& defaults = *new std::unique_ptr<UserDefaults>(std::make_unique<MemoryUserDefaults>());
    return defaults;
}

} // namespace

UserDefaults& UserDefaults::standard()
{
    return *standardDefaults();
}

void UserDefaults::install(std::unique_ptr<UserDefaults> defaults)
{
    standardDefaults() = defaults ? std::move(defaults) : std::make_unique<MemoryUserDefaults>();
}

} // namespace lodestar
