// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Store/ObjectContext.h"

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <utility>

namespace lodestar
{

class FeedDictionary;

/// A registered console. The main thread writes the persisted attributes, and any thread may read them; an attribute
/// without a value reads as `nullopt`. The transient members hold the last fetch, are never stored, and may be used
/// from any thread.
///
/// The feed dictionary is opaque here, because feeds belong to a higher module: read it with `feedOfType` of
/// Inventory/Feed.h.
class Corvel : public ManagedObject
{
public:
    static constexpr std::string_view entityName = "Corvel";
    static EntityDescription entity();

    Corvel();

    std::optional<std::string> name() const { return text(Name); }
    std::optional<std::string> address() const { return text(Address); }
    std::optional<std::string> username() const { return text(Username); }
    std::optional<std::string> password() const { return text(Password); }
    std::optional<std::string> version() const { return text(Version); }
    /// The integer value of `demo`, 0 when it has none; 1 marks the demonstration console.
    int demo() const;
    void setName(std::optional<std::string> value) { setText(Name, std::move(value)); }
    void setAddress(std::optional<std::string> value) { setText(Address, std::move(value)); }
    void setUsername(std::optional<std::string> value) { setText(Username, std::move(value)); }
    void setPassword(std::optional<std::string> value) { setText(Password, std::move(value)); }
    void setVersion(std::optional<std::string> value) { setText(Version, std::move(value)); }
    void setDemo(bool value);

    std::atomic<bool> isOnline = false;
    std::atomic<bool> completedFetch = false;
    /// Numbers of managed systems with errors and with attention LEDs lit; 0 until counted.
    std::atomic<int> numMSErrors = 0;
    std::atomic<int> numMSLEDs = 0;

    /// The feeds of the last fetch as one immutable snapshot. Null before the first fetch and after a reset.
    std::shared_ptr<const FeedDictionary> restData() const;
    void setRestData(std::shared_ptr<const FeedDictionary> feeds);
    /// Replaces the snapshot in one step by what the function makes of it. The function must not use this record.
    using RestDataChange =
        std::function<std::shared_ptr<const FeedDictionary>(const std::shared_ptr<const FeedDictionary>&)>;
    void changeRestData(const RestDataChange& change);

private:
    /// Indices of the attributes, in the order in which `entity` lists them.
    enum Attribute : std::size_t { Name, Address, Username, Password, Demo, Version, AttributeCount };

    std::optional<std::string> text(std::size_t index) const;
    void setText(std::size_t index, std::optional<std::string> value);

    mutable std::mutex m_attributesMutex; ///< keeps other threads from reading a half-written attribute
    mutable std::mutex m_restDataMutex;
    std::shared_ptr<const FeedDictionary> m_restData;
};

using CorvelRef = std::shared_ptr<Corvel>;

} // namespace lodestar
