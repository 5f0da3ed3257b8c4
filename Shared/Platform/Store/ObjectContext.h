// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Result.h"

#include <atomic>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace lodestar
{

/// A stored attribute: none, a number or a text.
using AttributeValue = std::variant<std::monostate, std::int64_t, std::string>;

enum class AttributeType { Number, String };

struct AttributeDescription {
    std::string name;
    AttributeType type;
};

class ManagedObject;

/// An entity's attributes in storage order, and how to make an empty object of it.
struct EntityDescription {
    std::string name;
    std::vector<AttributeDescription> attributes;
    std::function<std::shared_ptr<ManagedObject>()> make;
};

/// To-many relation between two entities, each named from its own side ("groups" of Corvel, "corvels" of Group).
struct RelationshipDescription {
    std::string entity, name, inverseEntity, inverseName;
};

/// The compiled model: what a store must hold. Two models are the same when their `version` is.
struct ManagedObjectModel {
    std::vector<EntityDescription> entities;
    std::vector<RelationshipDescription> relationships;
    int version = 1;
};

/// A record. Its attributes are read and written by index in the entity's order, on the context's thread. A write that
/// changes nothing leaves the object clean.
class ManagedObject
{
public:
    explicit ManagedObject(std::size_t attributeCount) : m_values(attributeCount) {}
    virtual ~ManagedObject() = default;
    ManagedObject(const ManagedObject&) = delete;
    ManagedObject& operator=(const ManagedObject&) = delete;

    const AttributeValue& attribute(std::size_t index) const { return m_values[index]; }
    void setAttribute(std::size_t index, AttributeValue value);

    /// In the store or to be put there by the next save; false once deleted or when never inserted.
    bool isInserted() const { return m_inserted; }
    /// True once a context has been told to delete the object. Any thread: work that was under way for the object asks
    /// before it leaves traces of it.
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

/// One SQLite store and the objects read from it. One thread. Objects are shared: a deleted one stays readable to
/// whoever holds it.
class ObjectContext
{
public:
    /// Opens or creates the store. A file that is no store of this model is refused and left byte for byte as it was.
    static Result<std::unique_ptr<ObjectContext>> open(const std::string& path, ManagedObjectModel model);
    ~ObjectContext();
    ObjectContext(const ObjectContext&) = delete;
    ObjectContext& operator=(const ObjectContext&) = delete;

    /// A new object of the entity, to be stored by the next save. The entity must be in the model.
    std::shared_ptr<ManagedObject> insertNewObject(std::string_view entity);
    /// Takes an object out, from the store with the next save. Objects of no context are left alone.
    void deleteObject(const std::shared_ptr<ManagedObject>& object);
    /// All objects of the entity, saved ones in the store's order, then unsaved ones in the order of insertion. Objects
    /// already in memory are the same objects.
    Result<std::vector<std::shared_ptr<ManagedObject>>> fetchAll(std::string_view entity);

    bool hasChanges() const;
    /// Writes what changed, in one transaction. On failure the store is as before and every change still pending.
    Result<void> save();

    /// Wipes what deleted objects left in the store's files, if anything; a few writes to the disk. `save` does so at
    /// once, or, with a function set here, calls that, which is to see to it soon: many deletions in a row then share
    /// it. What is not wiped by then is when the store is closed or opened again.
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
    /// Adds each object, with the number that it was given, to its entity's place.
    void writeInserted(std::vector<SavedObjects>& written);
    void scrubSoon();

    std::unique_ptr<State> m_state;
};

} // namespace lodestar
