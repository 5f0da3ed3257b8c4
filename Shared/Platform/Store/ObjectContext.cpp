// SPDX-License-Identifier: Apache-2.0
#include "Platform/Store/ObjectContext.h"

#include "Platform/Store/StoreFile.h"
#include "Platform/Store/StoreSchema.h"

#include <SQLiteCpp/Statement.h>

#include <algorithm>
#include <cassert>
#include <new>
#include <sqlite3.h>
#include <utility>

namespace lodestar
{

namespace
{

using ObjectRef = std::shared_ptr<ManagedObject>;

AttributeValue readColumn(const SQLite::Column& column)
{
    if (column.isInteger()) {
        return column.getInt64();
    }
    if (column.isNull()) {
        return {};
    }
    const char* const text = column.getText();
    return std::string(text, static_cast<std::size_t>(column.getBytes()));
}

/// Binds the value without a copy: it must live until the statement has run.
void bindValue(SQLite::Statement& statement, int parameter, const AttributeValue& value)
{
    if (const auto* number = std::get_if<std::int64_t>(&value)) {
        statement.bind(parameter, *number);
    } else if (const auto* text = std::get_if<std::string>(&value)) {
        statement.bindNoCopy(parameter, *text);
    } else {
        statement.bind(parameter);
    }
}

/// Runs a prepared statement that yields no rows, and resets it for its next use even when it throws.
void run(SQLite::Statement& statement)
{
    struct Reset {
        SQLite::Statement& statement;
        ~Reset() { statement.tryReset(); }
    };
    const Reset reset{statement};
    statement.executeStep();
}

/// The transaction around each save. Its statements stay prepared: parsing them each time took a sixth of a save.
class SaveTransaction
{
public:
    explicit SaveTransaction(SQLite::Database& database)
        : m_database(database), m_begin(database, "BEGIN IMMEDIATE"), m_commit(database, "COMMIT")
    {
    }

    template <typename Work>
    void perform(const Work& work)
    {
        run(m_begin);
        try {
            work();
            run(m_commit);
        } catch (...) {
            // When SQLite has rolled back already, this fails, and that does no harm.
            m_database.tryExec("ROLLBACK");
            throw;
        }
    }

private:
    SQLite::Database& m_database;
    SQLite::Statement m_begin;
    SQLite::Statement m_commit;
};

} // namespace

struct ObjectContext::State {
    /// An entity's objects in memory, by row number, and its statements, prepared on first use.
    struct Entity {
        SavedObjects saved;
        std::map<std::uint64_t, SQLite::Statement> updates; ///< by dirty mask
        std::unique_ptr<SQLite::Statement> insert;
        std::unique_ptr<SQLite::Statement> remove;
    };

    State(ManagedObjectModel theModel, std::unique_ptr<SQLite::Database> theDatabase)
        : model(std::move(theModel)), database(std::move(theDatabase)), entities(model.entities.size())
    {
    }

    std::size_t entityIndex(std::string_view name) const
    {
        const auto found = std::ranges::find(model.entities, name, &EntityDescription::name);
        return static_cast<std::size_t>(found - model.entities.begin());
    }

    ManagedObjectModel model;
    std::unique_ptr<SQLite::Database> database; // outlives the statements below
    SaveTransaction transaction{*database};
    std::vector<Entity> entities;
    std::vector<ObjectRef> inserted;     ///< not saved yet, in order
    std::vector<ManagedObject*> changed; ///< saved objects with dirty bits; owned by `saved`
    std::vector<ObjectRef> deleted;      ///< deleted objects that are still in the store
    std::function<void()> scrubNeeded;
    bool scrubPending = false; ///< the files may still hold deleted records
};

void ManagedObject::setAttribute(std::size_t index, AttributeValue value)
{
    if (m_values[index] == value) {
        return;
    }
    // Marks the change before the value is set, because marking may fail: a value set without a mark would never be
    // saved.
    if (m_context != nullptr && m_rowId != 0) {
        if (m_dirty == 0) {
            m_context->m_state->changed.push_back(this);
        }
        m_dirty |= std::uint64_t{1} << index;
    }
    m_values[index] = std::move(value);
}

Result<std::unique_ptr<ObjectContext>> ObjectContext::open(const std::string& path, ManagedObjectModel model)
{
    // The dirty mask has one bit for each attribute.
    assert(std::ranges::all_of(model.entities, [](const auto& entity) { return entity.attributes.size() <= 64; }));
    try {
        const bool wasLeftOpen = hasLog(path);
        auto database = openStoreFile(path, model);
        if (!database) {
            return database.error();
        }
        auto state = std::make_unique<State>(std::move(model), std::move(database).value());
        state->scrubPending = wasLeftOpen;
        std::unique_ptr<ObjectContext> context(new ObjectContext(std::move(state)));
        context->scrub();
        return context;
    } catch (const SQLite::Exception& exception) {
        return storeError(exception);
    } catch (const std::bad_alloc& exception) {
        return storeError(exception);
    }
}

ObjectContext::ObjectContext(std::unique_ptr<State> state) : m_state(std::move(state)) {}

ObjectContext::~ObjectContext()
{
    scrub();
    for (const auto& entity : m_state->entities) {
        for (const auto& [rowId, object] : entity.saved) {
            detach(*object);
        }
    }
    for (const auto& object : m_state->inserted) {
        detach(*object);
    }
}

void ObjectContext::detach(ManagedObject& object)
{
    object.m_context = nullptr;
    object.m_inserted = false;
    object.m_dirty = 0;
}

void ObjectContext::attach(ManagedObject& object, std::size_t entity, std::int64_t rowId)
{
    object.m_context = this;
    object.m_inserted = true;
    object.m_entity = entity;
    object.m_rowId = rowId;
}

std::shared_ptr<ManagedObject> ObjectContext::insertNewObject(std::string_view entity)
{
    const std::size_t index = m_state->entityIndex(entity);
    assert(index < m_state->entities.size());
    ObjectRef object = m_state->model.entities[index].make();
    attach(*object, index, 0);
    m_state->inserted.push_back(object);
    return object;
}

void ObjectContext::deleteObject(const std::shared_ptr<ManagedObject>& object)
{
    if (object == nullptr || object->m_context != this) {
        return;
    }
    if (object->m_rowId == 0) {
        std::erase(m_state->inserted, object);
    } else {
        if (object->m_dirty != 0) {
            std::erase(m_state->changed, object.get());
        }
        m_state->deleted.push_back(object);
        m_state->entities[object->m_entity].saved.erase(object->m_rowId);
    }
    detach(*object);
    object->m_deleted = true;
}

Result<std::vector<std::shared_ptr<ManagedObject>>> ObjectContext::fetchAll(std::string_view entity)
{
    const std::size_t index = m_state->entityIndex(entity);
    assert(index < m_state->entities.size());
    const EntityDescription& description = m_state->model.entities[index];
    SavedObjects& saved = m_state->entities[index].saved;
    const auto isDeleted = [&](std::int64_t rowId) {
        return std::ranges::any_of(m_state->deleted, [&](const ObjectRef& object) {
            return object->m_entity == index && object->m_rowId == rowId;
        });
    };
    std::vector<ObjectRef> objects;
    try {
        SQLite::Statement query(*m_state->database, selectStatement(description));
        while (query.executeStep()) {
            const std::int64_t rowId = query.getColumn(0).getInt64();
            auto found = saved.find(rowId);
            if (found == saved.end()) {
                if (isDeleted(rowId)) {
                    continue;
                }
                ObjectRef object = description.make();
                for (std::size_t i = 0; i < description.attributes.size(); ++i) {
                    object->m_values[i] = readColumn(query.getColumn(static_cast<int>(i) + 1));
                }
                attach(*object, index, rowId);
                found = saved.emplace(rowId, std::move(object)).first;
            }
            objects.push_back(found->second);
        }
        std::ranges::copy_if(m_state->inserted, std::back_inserter(objects),
                             [&](const ObjectRef& object) { return object->m_entity == index; });
    } catch (const SQLite::Exception& exception) {
        return storeError(exception);
    } catch (const std::bad_alloc& exception) {
        return storeError(exception);
    }
    return objects;
}

bool ObjectContext::hasChanges() const
{
    return !m_state->inserted.empty() || !m_state->changed.empty() || !m_state->deleted.empty();
}

void ObjectContext::writeDeleted()
{
    for (const ObjectRef& object : m_state->deleted) {
        auto& statement = m_state->entities[object->m_entity].remove;
        if (statement == nullptr) {
            statement = std::make_unique<SQLite::Statement>(*m_state->database,
                                                            deleteStatement(m_state->model.entities[object->m_entity]));
        }
        statement->bind(1, object->m_rowId);
        run(*statement);
    }
}

void ObjectContext::writeChanged()
{
    for (const ManagedObject* const object : m_state->changed) {
        auto& updates = m_state->entities[object->m_entity].updates;
        auto found = updates.find(object->m_dirty);
        if (found == updates.end()) {
            found = updates
                        .try_emplace(object->m_dirty, *m_state->database,
                                     updateStatement(m_state->model.entities[object->m_entity], object->m_dirty))
                        .first;
        }
        int parameter = 0;
        for (std::size_t i = 0; i < object->m_values.size(); ++i) {
            if ((object->m_dirty >> i & 1U) != 0) {
                bindValue(found->second, ++parameter, object->m_values[i]);
            }
        }
        found->second.bind(++parameter, object->m_rowId);
        // When another process has deleted the row, the update changes nothing: an object's change must not bring the
        // record back.
        run(found->second);
    }
}

void ObjectContext::writeInserted(std::vector<SavedObjects>& written)
{
    for (const ObjectRef& object : m_state->inserted) {
        auto& statement = m_state->entities[object->m_entity].insert;
        if (statement == nullptr) {
            statement = std::make_unique<SQLite::Statement>(*m_state->database,
                                                            insertStatement(m_state->model.entities[object->m_entity]));
        }
        for (std::size_t i = 0; i < object->m_values.size(); ++i) {
            bindValue(*statement, static_cast<int>(i) + 1, object->m_values[i]);
        }
        run(*statement);
        written[object->m_entity].insert_or_assign(m_state->database->getLastInsertRowid(), object);
    }
}

Result<void> ObjectContext::save()
{
    if (!hasChanges()) {
        return {};
    }
    // Everything that needs memory happens before the commit: after it nothing may fail.
    std::vector<SavedObjects> written;
    try {
        written.resize(m_state->entities.size());
        m_state->transaction.perform([&] {
            // Deleted rows go first: SQLite may give their numbers to new rows.
            writeDeleted();
            writeChanged();
            writeInserted(written);
        });
    } catch (const SQLite::Exception& exception) {
        return storeError(exception);
    } catch (const std::bad_alloc& exception) {
        return storeError(exception);
    }
    m_state->scrubPending |= !m_state->deleted.empty();
    m_state->deleted.clear();
    for (ManagedObject* const object : m_state->changed) {
        object->m_dirty = 0;
    }
    m_state->changed.clear();
    for (std::size_t entity = 0; entity < written.size(); ++entity) {
        SavedObjects& saved = m_state->entities[entity].saved;
        for (const auto& [rowId, object] : written[entity]) {
            object->m_rowId = rowId;
            saved.erase(rowId);
        }
        saved.merge(written[entity]);
    }
    m_state->inserted.clear();
    scrubSoon();
    return {};
}

void ObjectContext::scrubSoon()
{
    try {
        if (m_state->scrubPending && m_state->scrubNeeded) {
            m_state->scrubNeeded();
            return;
        }
    } catch (const std::bad_alloc&) {
        // The later scrub cannot be arranged, so it happens now.
    }
    scrub();
}

// The deletion itself is already committed: a failure here only leaves the wiping to the next save or to closing, and
// an end of the process to the next opening, which finds the log.
void ObjectContext::scrub()
{
    if (m_state->scrubPending) {
        m_state->scrubPending = !wipeDeleted(*m_state->database).ok();
    }
}

void ObjectContext::setScrubNeeded(std::function<void()> scrubNeeded)
{
    m_state->scrubNeeded = std::move(scrubNeeded);
}

} // namespace lodestar
