// SPDX-License-Identifier: Apache-2.0
#include "Platform/UserDefaults.h"

#include <utility>

namespace lodestar
{

namespace
{

/// Never destroyed: workers may still read settings while the process ends.
std::unique_ptr<UserDefaults>& standardDefaults()
{
    static auto& defaults = *new std::unique_ptr<UserDefaults>(std::make_unique<UserDefaults>());
    return defaults;
}

} // namespace

UserDefaults::UserDefaults(Values values) : m_values(std::move(values)) {}

template <typename T>
std::optional<T> UserDefaults::get(const std::string& key) const
{
    const std::lock_guard lock(m_mutex);
    const auto found = m_values.find(key);
    const T* const value = found != m_values.end() ? std::get_if<T>(&found->second) : nullptr;
    return value != nullptr ? std::optional<T>(*value) : std::nullopt;
}

void UserDefaults::set(const std::string& key, Value value)
{
    {
        const std::lock_guard lock(m_mutex);
        const auto [entry, isNew] = m_values.try_emplace(key, value);
        if (!isNew && entry->second == value) {
            return;
        }
        entry->second = std::move(value);
    }
    didChange();
}

bool UserDefaults::boolForKey(const std::string& key) const
{
    return get<bool>(key).value_or(false);
}

void UserDefaults::setBool(bool value, const std::string& key)
{
    set(key, value);
}

std::optional<std::string> UserDefaults::stringForKey(const std::string& key) const
{
    return get<std::string>(key);
}

void UserDefaults::setString(const std::string& value, const std::string& key)
{
    set(key, value);
}

void UserDefaults::removeObjectForKey(const std::string& key)
{
    {
        const std::lock_guard lock(m_mutex);
        if (m_values.erase(key) == 0) {
            return;
        }
    }
    didChange();
}

std::vector<std::string> UserDefaults::allKeys() const
{
    const std::lock_guard lock(m_mutex);
    std::vector<std::string> keys;
    keys.reserve(m_values.size());
    for (const auto& [key, value] : m_values) {
        keys.push_back(key);
    }
    return keys;
}

UserDefaults::Values UserDefaults::values() const
{
    const std::lock_guard lock(m_mutex);
    return m_values;
}

UserDefaults& UserDefaults::standard()
{
    return *standardDefaults();
}

void UserDefaults::install(std::unique_ptr<UserDefaults> defaults)
{
    standardDefaults() = defaults ? std::move(defaults) : std::make_unique<UserDefaults>();
}

} // namespace lodestar
