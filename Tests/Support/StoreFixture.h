// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Store/ObjectContext.h"
#include "Tests/Support/ScratchFolder.h"

#include <SQLiteCpp/Database.h>
#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <vector>

namespace lodestar::test
{

/// A folder of its own for each test, and a model of two related entities.
class StoreFixture : public ::testing::Test
{
public:
    StoreFixture() = default;
    StoreFixture(const StoreFixture&) = delete;
    StoreFixture& operator=(const StoreFixture&) = delete;

protected:
    using ObjectRef = std::shared_ptr<ManagedObject>;
    enum Attribute : std::size_t { Title, Note, Count };

    static ManagedObjectModel model(int version = 1)
    {
        const auto entity = [](std::string name) {
            return EntityDescription{
                std::move(name),
                {{"title", AttributeType::String}, {"note", AttributeType::String}, {"count", AttributeType::Number}},
                [] { return std::make_shared<ManagedObject>(3); }};
        };
        return {{entity("Item"), entity("Order")}, {{"Item", "orders", "Order", "items"}}, version};
    }

    /// Removes everything from the folder but what has that name.
    void clear(const std::string& kept = {}) const
    {
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            if (entry.path().filename() != kept) {
                std::filesystem::remove_all(entry);
            }
        }
    }

    std::unique_ptr<ObjectContext> open() const
    {
        auto opened = ObjectContext::open(path, model());
        if (!opened) {
            ADD_FAILURE() << opened.error().localizedDescription << " " << opened.error().failureReason;
            std::abort();
        }
        return std::move(opened).value();
    }

    static ObjectRef insert(ObjectContext& context, const std::string& title, std::int64_t count = 0)
    {
        ObjectRef object = context.insertNewObject("Item");
        object->setAttribute(Title, title);
        object->setAttribute(Count, count);
        return object;
    }

    /// A store that holds items of these titles, and that nobody has open.
    void makeStore(const std::vector<std::string>& titles) const
    {
        const auto context = open();
        for (const std::string& title : titles) {
            insert(*context, title);
        }
        EXPECT_TRUE(context->save().ok());
    }

    static std::vector<ObjectRef> fetch(ObjectContext& context, const std::string& entity = "Item")
    {
        auto objects = context.fetchAll(entity);
        EXPECT_TRUE(objects.ok());
        return objects ? std::move(objects).value() : std::vector<ObjectRef>();
    }

    static std::vector<std::string> titles(const std::vector<ObjectRef>& objects)
    {
        std::vector<std::string> result;
        for (const ObjectRef& object : objects) {
            const auto* title = std::get_if<std::string>(&object->attribute(Title));
            result.push_back(title != nullptr ? *title : "(none)");
        }
        return result;
    }

    /// What the store would hold for a process that starts now: read from a copy, as after a crash.
    std::vector<std::string> storedTitles() const
    {
        const std::filesystem::path copy = folder / "copy";
        std::filesystem::create_directory(copy);
        for (const char* const suffix : {"", "-wal"}) {
            if (std::filesystem::exists(path.string() + suffix)) {
                std::filesystem::copy_file(path.string() + suffix, (copy / path.filename()).string() + suffix);
            }
        }
        std::vector<std::string> result;
        if (auto context = ObjectContext::open(copy / path.filename(), model())) {
            result = titles(fetch(*context.value()));
        } else {
            result = {"(refused)"};
        }
        std::filesystem::remove_all(copy);
        return result;
    }

    /// Every file of the folder with its bytes and permissions, so that two states can be compared.
    std::map<std::string, std::string> snapshot() const
    {
        std::map<std::string, std::string> files;
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            std::string& state = files[entry.path().filename()];
            state = std::to_string(static_cast<unsigned>(entry.status().permissions())) + ":";
            if (entry.is_regular_file()) {
                state += scratch.read(entry.path().filename());
            }
        }
        return files;
    }

    void write(const std::string& name, const std::string& bytes) const
    {
        std::ofstream(folder / name, std::ios::binary) << bytes;
    }

    /// A second, plain connection to the store.
    SQLite::Database plain() const { return {path.string(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE, 1000}; }

    const ScratchFolder scratch;
    const std::filesystem::path& folder = scratch.path();
    std::filesystem::path path = folder / "Test.sqlite";
};

} // namespace lodestar::test
