// SPDX-License-Identifier: Apache-2.0
#include "Tests/Support/LongRun.h"
#include "Tests/Support/StoreFixture.h"

#include <gmock/gmock.h>

#include <functional>
#include <random>
#include <set>
#include <sqlite3.h>
#include <sys/stat.h>

namespace lodestar
{

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

using ObjectContextTests = test::StoreFixture;

TEST_F(ObjectContextTests, ValuesComeBackExactly)
{
    const std::vector<std::pair<AttributeValue, AttributeValue>> values = {
        {AttributeValue(), std::int64_t{0}},
        {std::string(), AttributeValue()},
        {std::string("a\0b\0", 4), std::int64_t{-1}},
        {std::string("Zürich 東京 \U0001F680 e\u0301"), INT64_MAX},
        {std::string("'; DROP TABLE Item; --"), INT64_MIN},
        {std::string("0012"), std::int64_t{1}},
        {std::string("not \xFF\xC0 UTF-8"), std::int64_t{2}},
        {std::string(3'000'000, 'x'), std::int64_t{3}},
    };
    {
        const auto context = open();
        for (const auto& [text, number] : values) {
            const ObjectRef object = context->insertNewObject("Item");
            object->setAttribute(Note, text);
            object->setAttribute(Count, number);
        }
        ASSERT_TRUE(context->save().ok());
    }
    const auto context = open();
    auto expected = values.begin();
    for (const ObjectRef& object : fetch(*context)) {
        EXPECT_EQ(object->attribute(Title), AttributeValue());
        EXPECT_EQ(std::pair(object->attribute(Note), object->attribute(Count)), *expected++);
    }
    EXPECT_EQ(expected, values.end());
    EXPECT_FALSE(context->hasChanges());
}

TEST_F(ObjectContextTests, FetchGivesSavedThenUnsavedAndTheSameObjects)
{
    makeStore({"b", "c", "a"});
    const auto context = open();
    const ObjectRef unsaved = insert(*context, "0 unsaved");
    const auto other = context->insertNewObject("Order");
    const auto first = fetch(*context);
    EXPECT_THAT(titles(first), ElementsAre("b", "c", "a", "0 unsaved"));
    EXPECT_EQ(first[3], unsaved);
    EXPECT_THAT(fetch(*context, "Order"), ElementsAre(other));

    first[1]->setAttribute(Title, std::string("changed"));
    EXPECT_EQ(fetch(*context), first);
    context->deleteObject(first[2]);
    EXPECT_THAT(titles(fetch(*context)), ElementsAre("b", "changed", "0 unsaved"));
    ASSERT_TRUE(context->save().ok());
    // The number of the deleted last row may be given away again; the order of insertion still holds.
    insert(*context, "later");
    ASSERT_TRUE(context->save().ok());
    EXPECT_THAT(titles(fetch(*context)), ElementsAre("b", "changed", "0 unsaved", "later"));
    EXPECT_THAT(storedTitles(), ElementsAre("b", "changed", "0 unsaved", "later"));
}

TEST_F(ObjectContextTests, SaveWritesOnlyWhatChanged)
{
    const auto context = open();
    const ObjectRef a = insert(*context, "a");
    const ObjectRef b = insert(*context, "b");
    ASSERT_TRUE(context->save().ok());
    a->setAttribute(Title, std::string("a"));
    EXPECT_FALSE(context->hasChanges()) << "the same value again";
    a->setAttribute(Note, std::string());
    EXPECT_TRUE(context->hasChanges()) << "none and the empty text differ";
    b->setAttribute(Title, std::string("b2"));
    b->setAttribute(Count, std::int64_t{7});
    // Another process's changes stay, as far as they are of other columns.
    plain().exec("UPDATE Item SET title = 'other', note = 'other', count = 1");
    ASSERT_TRUE(context->save().ok());
    EXPECT_EQ(plain()
                  .execAndGet("SELECT group_concat(title || ' ' || quote(note) || ' ' || count, ', ') FROM Item")
                  .getString(),
              "other '' 1, b2 'other' 7");
    EXPECT_FALSE(context->hasChanges());

    context->deleteObject(insert(*context, "never stored"));
    EXPECT_FALSE(context->hasChanges());
    a->setAttribute(Title, std::string("changed, then deleted"));
    context->deleteObject(a);
    insert(*context, "c");
    ASSERT_TRUE(context->save().ok());
    EXPECT_THAT(storedTitles(), ElementsAre("b2", "c"));
}

TEST_F(ObjectContextTests, ASaveThatTheDatabaseRefusesHalfWayLeavesNothingOfItself)
{
    const auto context = open();
    const ObjectRef a = insert(*context, "a");
    ASSERT_TRUE(context->save().ok());
    plain().exec("CREATE TRIGGER t BEFORE INSERT ON Item WHEN NEW.title = 'c' BEGIN SELECT RAISE(ABORT, 'no'); END");
    a->setAttribute(Title, std::string("a2"));
    insert(*context, "b");
    insert(*context, "c");
    EXPECT_FALSE(context->save().ok());
    EXPECT_TRUE(context->hasChanges());
    EXPECT_EQ(plain().execAndGet("SELECT group_concat(title) FROM Item").getString(), "a");
    plain().exec("DROP TRIGGER t");
    ASSERT_TRUE(context->save().ok());
    EXPECT_THAT(storedTitles(), ElementsAre("a2", "b", "c"));
}

TEST_F(ObjectContextTests, ObjectsOutliveTheirDeletionAndTheirContext)
{
    auto context = open();
    const ObjectRef deleted = insert(*context, "deleted");
    const ObjectRef kept = insert(*context, "kept");
    ASSERT_TRUE(context->save().ok());
    context->deleteObject(deleted);
    EXPECT_FALSE(deleted->isInserted());
    ASSERT_TRUE(context->save().ok());
    deleted->setAttribute(Title, std::string("still writable"));
    for (const ObjectRef& gone : {deleted, ObjectRef(), std::make_shared<ManagedObject>(3)}) {
        context->deleteObject(gone);
    }
    EXPECT_FALSE(context->hasChanges());

    kept->setAttribute(Note, std::string("lost with the context"));
    context.reset();
    EXPECT_FALSE(kept->isInserted());
    kept->setAttribute(Title, std::string("alone"));
    context = open();
    context->deleteObject(kept);
    EXPECT_FALSE(context->hasChanges()) << "an object of another context is left alone";
    EXPECT_THAT(titles(fetch(*context)), ElementsAre("kept"));
}

TEST_F(ObjectContextTests, FilesArePrivateAndRelationsDeclared)
{
    path = folder / "new" / "deeper" / "Test.sqlite";
    const mode_t former = ::umask(0);
    const auto context = open();
    insert(*context, "a");
    ASSERT_TRUE(context->save().ok());
    ::umask(former);
    EXPECT_EQ(modeOf(folder / "new"), 0700U);
    EXPECT_EQ(modeOf(path.parent_path()), 0700U);
    for (const char* const suffix : {"", "-wal", "-shm"}) {
        EXPECT_EQ(modeOf(path.string() + suffix), 0600U) << suffix;
    }
    SQLite::Database database = plain();
    EXPECT_EQ(database.execAndGet("PRAGMA journal_mode").getString(), "wal");
    database.exec("PRAGMA foreign_keys=ON; INSERT INTO \"Order\"(_id) VALUES(5);"
                  "INSERT INTO Item_orders(items, orders) VALUES(1, 5)");
    EXPECT_NE(database.tryExec("INSERT INTO Item_orders(items, orders) VALUES(1, 6)"), SQLITE_OK);
    context->deleteObject(fetch(*context).at(0));
    ASSERT_TRUE(context->save().ok());
    EXPECT_EQ(database.execAndGet("SELECT count(*) FROM Item_orders").getInt(), 0);
}

TEST_F(ObjectContextTests, NothingOfADeletedRecordStaysInAnyFile)
{
    const auto context = open();
    std::vector<ObjectRef> objects;
    for (int i = 0; i < 300; ++i) {
        objects.push_back(insert(*context, "title " + std::to_string(i)));
        objects.back()->setAttribute(Note, "secret-" + std::to_string(i) + "-secret " + std::string(100, 'x'));
        ASSERT_TRUE(context->save().ok());
    }
    for (std::size_t i = 0; i < objects.size(); i += 3) {
        context->deleteObject(objects[i]);
    }
    ASSERT_TRUE(context->save().ok());
    const auto expectNoSecret = [this](std::size_t first) {
        for (const auto& [name, bytes] : snapshot()) {
            for (std::size_t i = first; i < 300; i += 3) {
                ASSERT_THAT(bytes, Not(HasSubstr("secret-" + std::to_string(i) + "-secret"))) << name;
            }
        }
    };
    expectNoSecret(0);

    int asked = 0;
    context->setScrubNeeded([&asked] { ++asked; });
    for (std::size_t i = 1; i < objects.size(); i += 3) {
        context->deleteObject(objects[i]);
        ASSERT_TRUE(context->save().ok());
    }
    EXPECT_EQ(asked, 100);
    context->scrub();
    expectNoSecret(1);
    objects[2]->setAttribute(Count, std::int64_t{1});
    ASSERT_TRUE(context->save().ok());
    EXPECT_EQ(asked, 100) << "nothing is left to wipe";
    EXPECT_EQ(storedTitles().size(), 100U);
}

TEST_F(ObjectContextTests, ChurnAndKillsLeaveNothingOfADeletedRecord)
{
    const auto secretsIn = [](const std::string& bytes) {
        std::set<int> secrets;
        for (std::size_t at = 0; (at = bytes.find("secret-", at)) != std::string::npos; ++at) {
            secrets.insert(std::atoi(bytes.c_str() + at + 7));
        }
        return secrets;
    };
    const int tries = rounds(15, 500);
    for (int seed = 0; seed < tries; ++seed) {
        clear();
        // Rows of all sizes move from page to page, and their old places may be forgotten there.
        std::mt19937 random(static_cast<unsigned>(seed)); // NOLINT(cert-msc51-cpp): the same moves in every run
        const auto below = [&random](std::size_t limit) { return random() % limit; };
        auto context = open();
        context->setScrubNeeded([] {});
        std::vector<std::pair<ObjectRef, int>> live;
        int secrets = 0;
        for (int step = 0; step < 1500; ++step) {
            const std::size_t chosen = live.empty() ? 0 : below(live.size());
            const std::size_t what = live.empty() ? 0 : below(20);
            const std::string title(1 + below(seed % 2 == 0 ? 5000 : 300), 't');
            if (what < 8) {
                live.emplace_back(insert(*context, title), ++secrets);
                live.back().first->setAttribute(Note, "secret-" + std::to_string(secrets) + ".");
            } else if (what < 15) {
                live[chosen].first->setAttribute(Title, title);
            } else {
                context->deleteObject(live[chosen].first);
                live.erase(live.begin() + static_cast<std::ptrdiff_t>(chosen));
            }
            ASSERT_TRUE(context->save().ok());
        }
        if (seed % 3 == 0) {
            context->scrub();
        } else if (seed % 3 == 1) {
            context.reset();
        } else {
            // Killed before the scrub: the next start does it.
            const std::filesystem::path kept = folder / "kept";
            std::filesystem::create_directory(kept);
            for (const char* const suffix : {"", "-wal"}) {
                std::filesystem::copy_file(path.string() + suffix, (kept / "Test.sqlite").string() + suffix);
            }
            context.reset();
            clear("kept");
            for (const char* const suffix : {"", "-wal"}) {
                std::filesystem::rename((kept / "Test.sqlite").string() + suffix, path.string() + suffix);
            }
            context = open();
        }
        std::set<int> expected;
        for (const auto& [object, secret] : live) {
            expected.insert(secret);
        }
        std::set<int> found;
        for (const auto& [name, bytes] : snapshot()) {
            found.merge(secretsIn(bytes));
        }
        EXPECT_EQ(found, expected) << seed;
    }
}

TEST_F(ObjectContextTests, WhatIsNoStoreOfTheModelIsRefusedAndLeftAsItWas)
{
    const auto alter = [this](const std::string& sql) {
        open();
        plain().exec(sql);
    };
    struct Case {
        const char* name;
        int code;
        std::function<void()> prepare;
    };
    const std::vector<Case> cases = {
        {"text", SQLITE_NOTADB, [&] { write("Test.sqlite", std::string(5000, 'x')); }},
        {"short text", SQLITE_NOTADB, [&] { write("Test.sqlite", "SQLite format 3"); }},
        {"empty", SQLITE_NOTADB, [&] { write("Test.sqlite", ""); }},
        {"folder", SQLITE_CANTOPEN, [&] { std::filesystem::create_directory(path); }},
        {"pipe", SQLITE_CANTOPEN, [&] { ASSERT_EQ(::mkfifo(path.c_str(), 0644), 0); }},
        {"foreign database", SQLITE_NOTADB, [&] { plain().exec("CREATE TABLE t(x); INSERT INTO t VALUES(1)"); }},
        {"foreign database with a log", SQLITE_NOTADB,
         [&] {
             SQLite::Database database = plain();
             sqlite3_db_config(database.getHandle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
             database.exec("PRAGMA journal_mode=WAL; CREATE TABLE t(x); INSERT INTO t VALUES(1)");
         }},
        {"other application", SQLITE_NOTADB, [&] { alter("PRAGMA application_id=7"); }},
        {"older model", SQLITE_SCHEMA, [&] { alter("PRAGMA user_version=0"); }},
        {"newer model", SQLITE_SCHEMA, [&] { alter("PRAGMA user_version=2"); }},
        {"column missing", SQLITE_CORRUPT, [&] { alter("ALTER TABLE Item DROP COLUMN note"); }},
        {"table added", SQLITE_CORRUPT, [&] { alter("CREATE TABLE extra(x)"); }},
        {"log without its store", SQLITE_CORRUPT, [&] { write("Test.sqlite-wal", "frames"); }},
        {"cut in half", SQLITE_CORRUPT,
         [&] {
             open();
             std::filesystem::resize_file(path, std::filesystem::file_size(path) / 2);
         }},
    };
    for (const Case& refused : cases) {
        SCOPED_TRACE(refused.name);
        clear();
        refused.prepare();
        if (std::filesystem::is_regular_file(path)) {
            ASSERT_EQ(::chmod(path.c_str(), 0644), 0);
        }
        const auto before = snapshot();
        const auto opened = ObjectContext::open(path, model());
        ASSERT_FALSE(opened.ok());
        EXPECT_EQ(opened.error().domain, storeErrorDomain);
        EXPECT_EQ(opened.error().code & 0xFF, refused.code) << opened.error().localizedDescription;
        EXPECT_NE(opened.error().localizedDescription, "");
        EXPECT_EQ(snapshot(), before);
    }
    EXPECT_FALSE(ObjectContext::open("", model()).ok());
    EXPECT_FALSE(ObjectContext::open("/proc/none/Test.sqlite", model()).ok());
}

} // namespace lodestar
