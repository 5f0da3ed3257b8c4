// SPDX-License-Identifier: Apache-2.0
#include "Tests/Support/LongRun.h"
#include "Tests/Support/StoreFixture.h"

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

using ::testing::AnyOf;
using ::testing::ElementsAre;

using ObjectContextFaultTests = test::StoreFixture;

TEST_F(ObjectContextFaultTests, AStoreThatCannotBeWrittenIsRefusedAndLeftAsItWas)
{
    makeStore({"a"});
    const auto before = snapshot();
    const auto openForReading = +[](const char* file, int flags, int mode) {
        errno = EROFS;
        return (flags & O_ACCMODE) == O_RDONLY ? ::open(file, flags, mode) : -1;
    };
    // SQLite opens no file for writing, as on a disk that is mounted to be read only.
    sqlite3_vfs* const files = sqlite3_vfs_find("unix");
    files->xSetSystemCall(files, "open", reinterpret_cast<sqlite3_syscall_ptr>(openForReading));
    const auto opened = ObjectContext::open(path, model());
    files->xSetSystemCall(files, nullptr, nullptr);
    ASSERT_FALSE(opened.ok());
    EXPECT_EQ(opened.error().domain, storeErrorDomain);
    EXPECT_THAT(opened.error().code, AnyOf(SQLITE_READONLY, SQLITE_CANTOPEN));
    EXPECT_EQ(snapshot(), before);
    EXPECT_THAT(titles(fetch(*open())), ElementsAre("a"));
}

TEST_F(ObjectContextFaultTests, AKilledProcessKeepsWhatWasAcknowledged)
{
    makeStore({"counter", "long"});
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
            whole[name] = scratch.read(name);
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
            for (const auto& [name, bytes] : files) {
                EXPECT_EQ(scratch.read(name), bytes) << name;
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

} // namespace lodestar
