// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Result.h"
#include "Platform/Store/ManagedObjectModel.h"

#include <atomic>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

/// A record. Attributes are read and written by index in the entity's order, on the context's thread. Writing an equal
/// value leaves the object clean.
class ManagedObject
{
public:
    explicit ManagedObject(std::size_t attributeCount) : m_values(attributeCount) {}
    virtual ~ManagedObject() = default;
    ManagedObject(const ManagedObject&) = delete;
    ManagedObject& operator=(const ManagedObject&) = delete;

    const AttributeValue& attribute(std::size_t index) const { return m_values[index]; }
    void setAttribute(std::size_t index, AttributeValue value);

    /// True when the object is in the store or the next save will put it there; false once deleted or when never
    /// inserted.
    bool isInserted() const { return m_inserted; }
    /// True once a context was told to delete the object. Any thread: background work for the object asks before it
    /// stores a result.
    bool isDeleted() const { return m_deleted; }

private:
    friend class ObjectContext;
    std::vector<AttributeValue> m_values;
    std::uint64_t m_dirty = 0; ///< bit i: attribute i was changed since the last save
    std::int64_t m_rowId = 0;  ///< 0 until saved
    bool m_inserted = false;
    std::atomic<bool> m_deleted = false;
    std::size_t m_entity = 0;
    class ObjectContext* m_context = nullptr;
};

/// One SQLite store and the objects read from it. One thread. Objects are shared: a deleted object stays readable for
/// all who hold it.
class ObjectContext
{
public:
    /// Opens or creates the store. Refuses a file that is no store of this model and leaves it byte for byte as it was.
    static Result<std::unique_ptr<ObjectContext>> open(const std::string& path, ManagedObjectModel model);
    ~ObjectContext();
    ObjectContext(const ObjectContext&) = delete;
    ObjectContext& operator=(const ObjectContext&) = delete;

    /// Makes a new object of the entity; the next save stores it. The entity must be in the model.
    std::shared_ptr<ManagedObject> insertNewObject(std::string_view entity);
    /// Deletes the object from the context at once and from the store with the next save. Leaves an object of no
    /// context or of another context alone.
    void deleteObject(const std::shared_ptr<ManagedObject>& object);
    /// All objects of the entity: saved ones in the store's order, then unsaved ones in the order of insertion. An
    /// object that is already in memory is returned itself, not as a copy.
    Result<std::vector<std::shared_ptr<ManagedObject>>> fetchAll(std::string_view entity);

    bool hasChanges() const;
    /// Writes all changes in one transaction. On failure the store is as before and every change is still pending.
    Result<void> save();

    /// Wipes the remains of deleted objects from the store's files, if there are any; costs a few writes to the disk.
    /// `save` does this at once. With a function set here, `save` calls that function instead; the function must see
    /// that `scrub` runs soon, so that many deletions in a row share one scrub. Remains that are never scrubbed are
    /// wiped when the store is closed or opened again.
    void scrub();
    void setScrubNeeded(std::function<void()> scrubNeeded);

private:
    friend class ManagedObject;
    struct State;
    explicit ObjectContext(std::unique_ptr<State> state);
    void attach(ManagedObject& object, std::size_t entity, std::int64_t rowId);
    static void detach(ManagedObject& object);
    void writeDeleted();
    void writeChanged();
    using SavedObjects = std::map<std::int64_t, std::shared_ptr<ManagedObject>>; ///< by row number
    /// Writes each new object and notes it, with its row number, in `written` under its entity.
    void writeInserted(std::vector<SavedObjects>& written);
    void scrubSoon();

    std::unique_ptr<State> m_state;
};

} // namespace lodestar
