// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Store/ObjectContext.h"

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

namespace lodestar
{

class FeedDictionary;

/// A registered console. The persisted attributes are written on the main thread and read on any; none is "nil".
/// The transient members hold the last fetch, are never stored, and may be touched from any thread.
///
/// The feed dictionary is opaque here, because feeds stand above the model: read it with `feedOfType` of
/// Inventory/Feed.h.
class Corvel : public ManagedObject
{
public:
    static constexpr std::string_view entityName = "Corvel";
    static EntityDescription entity();

    Corvel();

    std::optional<std::string> name() const;
    std::optional<std::string> address() const;
    std::optional<std::string> username() const;
    std::optional<std::string> password() const;
    std::optional<std::string> version() const;
    /// The integer value of `demo`, 0 when none: 1 marks the demonstration console.
    int demo() const;
    void setName(std::optional<std::string> value);
    void setAddress(std::optional<std::string> value);
    void setUsername(std::optional<std::string> value);
    void setPassword(std::optional<std::string> value);
    void setVersion(std::optional<std::string> value);
    void setDemo(bool value);

    std::atomic<bool> isOnline = false;
    std::atomic<bool> completedFetch = false;
    /// Counts over the managed systems; 0 until counted.
    std::atomic<int> numMSErrors = 0;
    std::atomic<int> numMSLEDs = 0;

    /// The feeds of the last fetch as one immutable snapshot; null until fetched and after a reset.
    std::shared_ptr<const FeedDictionary> restData() const;
    void setRestData(std::shared_ptr<const FeedDictionary> feeds);
    /// Replaces the snapshot by what the function makes of it, in one step. The function must not touch this record.
    using RestDataChange =
        std::function<std::shared_ptr<const FeedDictionary>(const std::shared_ptr<const FeedDictionary>&)>;
    void changeRestData(const RestDataChange& change);

private:
    std::optional<std::string> text(std::size_t index) const;
    void setText(std::size_t index, std::optional<std::string> value);

    mutable std::mutex m_attributesMutex; ///< what workers read must not be half written by an edit
    mutable std::mutex m_restDataMutex;
    std::shared_ptr<const FeedDictionary> m_restData;
};

using CorvelRef = std::shared_ptr<Corvel>;

} // namespace lodestar
