// SPDX-License-Identifier: Apache-2.0
#include "Tests/LongRun.h"
#include "Tests/Platform/StoreFixture.h"

#include <gmock/gmock.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <random>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

namespace lodestar
{

namespace
{

using test::StoreFixture;
using ::testing::AnyOf;
using ::testing::ElementsAre;

/// Makes SQLite's writes to the disk fail from within the process: the n-th one only, or that and all later ones, as on
/// a full disk. Or has no file opened for writing, as on a disk that is mounted to be read only.
class WriteFault
{
public:
    enum class Kind { Once, FromThenOn };

    WriteFault()
    {
        replace("write", reinterpret_cast<sqlite3_syscall_ptr>(&failingWrite));
        replace("pwrite", reinterpret_cast<sqlite3_syscall_ptr>(&failingPwrite));
        replace("pwrite64", reinterpret_cast<sqlite3_syscall_ptr>(&failingPwrite));
        replace("ftruncate", reinterpret_cast<sqlite3_syscall_ptr>(&failingTruncate));
        replace("open", reinterpret_cast<sqlite3_syscall_ptr>(&failingOpen));
    }
    ~WriteFault()
    {
        disarm();
        setReadOnly(false);
        sqlite3_vfs* const vfs = sqlite3_vfs_find("unix");
        vfs->xSetSystemCall(vfs, nullptr, nullptr);
    }
    WriteFault(const WriteFault&) = delete;
    WriteFault& operator=(const WriteFault&) = delete;

    static void arm(int n, Kind kind)
    {
        s_left = n;
        s_kind = kind;
        s_failures = 0;
    }
    static void disarm() { s_left = -1; }
    static int failures() { return s_failures; }
    static void setReadOnly(bool readOnly) { s_readOnly = readOnly; }

private:
    static void replace(const char* name, sqlite3_syscall_ptr function)
    {
        sqlite3_vfs* const vfs = sqlite3_vfs_find("unix");
        vfs->xSetSystemCall(vfs, name, function);
    }
    static bool fails()
    {
        if (s_left < 0) {
            return false;
        }
        if (s_left > 0) {
            --s_left;
            return false;
        }
        if (s_kind == Kind::Once) {
            s_left = -1;
        }
        ++s_failures;
        errno = ENOSPC;
        return true;
    }
    static ssize_t failingWrite(int file, const void* bytes, std::size_t size)
    {
        return fails() ? -1 : ::write(file, bytes, size);
    }
    static ssize_t failingPwrite(int file, const void* bytes, std::size_t size, off_t offset)
    {
        return fails() ? -1 : ::pwrite(file, bytes, size, offset);
    }
    static int failingTruncate(int file, off_t size) { return fails() ? -1 : ::ftruncate(file, size); }

    static int failingOpen(const char* file, int flags, int mode)
    {
        if (s_readOnly && (flags & O_ACCMODE) != O_RDONLY) {
            errno = EROFS;
            return -1;
        }
        return ::open(file, flags, mode);
    }

    static inline bool s_readOnly = false;
    static inline int s_left = -1;
    static inline Kind s_kind = Kind::Once;
    static inline int s_failures = 0;
};

class ObjectContextFaultTests : public StoreFixture
{
protected:
    void clear() const
    {
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            std::filesystem::remove_all(entry);
        }
    }
};

TEST_F(ObjectContextFaultTests, AFailedWriteLeavesTheStoreAndEveryChange)
{
    const WriteFault fault;
    int failedSaves = 0;
    for (const auto kind : {WriteFault::Kind::Once, WriteFault::Kind::FromThenOn}) {
        for (int n = 0, failures = 1; failures > 0; ++n) {
            SCOPED_TRACE(n);
            clear();
            auto context = open();
            const ObjectRef changed = insert(*context, "changed");
            const ObjectRef deleted = insert(*context, "deleted");
            ASSERT_TRUE(context->save().ok());

            changed->setAttribute(Title, std::string("changed 2"));
            changed->setAttribute(Note, std::string(20'000, 'n'));
            context->deleteObject(deleted);
            const ObjectRef inserted = insert(*context, "inserted");
            WriteFault::arm(n, kind);
            const Result<void> saved = context->save();
            failures = WriteFault::failures();
            WriteFault::disarm();
            if (!saved) {
                ++failedSaves;
                EXPECT_EQ(saved.error().domain, storeErrorDomain);
                EXPECT_TRUE(context->hasChanges());
                EXPECT_THAT(storedTitles(), ElementsAre("changed", "deleted"));
                EXPECT_THAT(fetch(*context), ElementsAre(changed, inserted));
                ASSERT_TRUE(context->save().ok());
            }
            EXPECT_FALSE(context->hasChanges());
            EXPECT_THAT(storedTitles(), ElementsAre("changed 2", "inserted"));
            EXPECT_THAT(fetch(*context), ElementsAre(changed, inserted));
        }
    }
    EXPECT_GT(failedSaves, 10);
    RecordProperty("tries", failedSaves);
}

TEST_F(ObjectContextFaultTests, AFailedWriteWhileOpeningLeavesNoHalfStore)
{
    const WriteFault fault;
    for (const bool exists : {false, true}) {
        for (int n = 0, failures = 1; failures > 0; ++n) {
            SCOPED_TRACE(n);
            clear();
            if (exists) {
                const auto context = open();
                insert(*context, "a");
                ASSERT_TRUE(context->save().ok());
            }
            WriteFault::arm(n, WriteFault::Kind::FromThenOn);
            const bool opened = ObjectContext::open(path, model()).ok();
            failures = WriteFault::failures();
            WriteFault::disarm();
            EXPECT_TRUE(opened || failures > 0);
            std::size_t files = 0;
            for (const auto& entry : std::filesystem::directory_iterator(folder)) {
                EXPECT_EQ(entry.path().filename().string().substr(0, path.filename().string().size() + 1).back(),
                          entry.path() == path ? 'e' : '-');
                ++files;
            }
            EXPECT_LE(files, 3U) << "a scratch file was left";
            const auto context = open();
            EXPECT_EQ(fetch(*context).size(), exists ? 1U : 0U);
        }
    }
}

TEST_F(ObjectContextFaultTests, AStoreThatCannotBeWrittenIsRefusedAndLeftAsItWas)
{
    {
        const auto context = open();
        insert(*context, "a");
        ASSERT_TRUE(context->save().ok());
    }
    const WriteFault fault;
    const auto before = snapshot();
    WriteFault::setReadOnly(true);
    const auto opened = ObjectContext::open(path, model());
    WriteFault::setReadOnly(false);
    ASSERT_FALSE(opened.ok());
    EXPECT_EQ(opened.error().domain, storeErrorDomain);
    EXPECT_THAT(opened.error().code, AnyOf(SQLITE_READONLY, SQLITE_CANTOPEN));
    EXPECT_EQ(snapshot(), before);
    EXPECT_THAT(titles(fetch(*open())), ElementsAre("a"));
}

TEST_F(ObjectContextFaultTests, AKilledProcessKeepsWhatWasAcknowledged)
{
    {
        const auto context = open();
        insert(*context, "counter");
        insert(*context, "long");
        ASSERT_TRUE(context->save().ok());
    }
    std::mt19937 random(20);
    const int tries = rounds(25, 1000);
    RecordProperty("tries", tries);
    for (int round = 0; round < tries; ++round) {
        std::array<int, 2> acknowledgements{};
        ASSERT_EQ(::pipe(acknowledgements.data()), 0);
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            auto opened = ObjectContext::open(path, model());
            if (!opened) {
                ::_exit(1);
            }
            auto objects = opened.value()->fetchAll("Item");
            for (std::int64_t i = 1;; ++i) {
                objects.value()[0]->setAttribute(Count, i);
                objects.value()[1]->setAttribute(Note, std::string(static_cast<std::size_t>(i % 7) * 3000, 'n'));
                if (!opened.value()->save().ok() || ::write(acknowledgements[1], &i, sizeof i) != sizeof i) {
                    ::_exit(2);
                }
            }
        }
        ::close(acknowledgements[1]);
        std::int64_t last = 0;
        const std::int64_t until = std::uniform_int_distribution<std::int64_t>(1, 40)(random);
        while (last < until && ::read(acknowledgements[0], &last, sizeof last) == sizeof last) {
        }
        ::kill(child, SIGKILL);
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status)) << "the child could not save";
        while (::read(acknowledgements[0], &last, sizeof last) == sizeof last) {
        }
        ::close(acknowledgements[0]);

        const auto context = open();
        const auto objects = fetch(*context);
        ASSERT_EQ(objects.size(), 2U);
        EXPECT_THAT(std::get<std::int64_t>(objects[0]->attribute(Count)), AnyOf(last, last + 1));
        EXPECT_EQ(plain().execAndGet("PRAGMA integrity_check").getString(), "ok");
    }
}

TEST_F(ObjectContextFaultTests, DamageIsRefusedOrSurvived)
{
    constexpr std::size_t records = 60;
    std::map<std::string, std::string> whole;
    {
        const auto context = open();
        std::vector<ObjectRef> objects;
        for (std::size_t i = 0; i < records; ++i) {
            objects.push_back(insert(*context, "title " + std::to_string(i)));
            objects.back()->setAttribute(Note, std::string(200, 'n'));
        }
        ASSERT_TRUE(context->save().ok());
        plain().exec("PRAGMA wal_checkpoint(TRUNCATE)");
        for (std::size_t i = 0; i < records; i += 7) {
            objects[i]->setAttribute(Note, std::string(100, 'm'));
            ASSERT_TRUE(context->save().ok());
        }
        for (const std::string name : {"Test.sqlite", "Test.sqlite-wal"}) {
            std::ifstream file(folder / name, std::ios::binary);
            whole[name].assign(std::istreambuf_iterator<char>(file), {});
        }
    }
    std::mt19937 random(7);
    int refusals = 0;
    int survivals = 0;
    const int tries = rounds(600, 10'000);
    RecordProperty("tries", tries);
    for (int round = 0; round < tries; ++round) {
        SCOPED_TRACE(round);
        clear();
        auto files = whole;
        // A third with the log, a third without, a third with damage in the log.
        if (round % 3 == 1) {
            files.erase("Test.sqlite-wal");
        }
        std::string& damaged = files[round % 3 == 2 ? "Test.sqlite-wal" : "Test.sqlite"];
        const std::size_t places = round % 2 == 0 ? 1 : 8;
        for (std::size_t i = 0; i < places; ++i) {
            // Half of the damage goes where structure is dense: the header and the heads of pages.
            std::size_t at = random() % damaged.size();
            at = random() % 2 == 0 ? at : at / 4096 * 4096 + at % 120;
            damaged[std::min(at, damaged.size() - 1)] = static_cast<char>(random() % 256);
        }
        for (const auto& [name, bytes] : files) {
            write(name, bytes);
        }
        auto opened = ObjectContext::open(path, model());
        if (!opened) {
            ++refusals;
            auto left = snapshot();
            for (const auto& [name, bytes] : files) {
                EXPECT_EQ(left[name].substr(left[name].find(':') + 1), bytes) << name;
            }
            continue;
        }
        ++survivals;
        const auto objects = fetch(*opened.value());
        EXPECT_EQ(objects.size(), records) << "records vanished unnoticed";
        for (const ObjectRef& object : objects) {
            object->setAttribute(Count, std::int64_t{round});
        }
        EXPECT_TRUE(opened.value()->save().ok());
    }
    EXPECT_GT(refusals, 100);
    EXPECT_GT(survivals, 100);
}

} // namespace

} // namespace lodestar
