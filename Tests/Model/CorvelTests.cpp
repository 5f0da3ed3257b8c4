// SPDX-License-Identifier: Apache-2.0
#include "Application/Model/Corvel.h"
#include "Application/Model/Group.h"
#include "Application/Model/StoreStack.h"
#include "Platform/Queues/MainQueue.h"
#include "Tests/Support/ScratchFolder.h"

#include <gmock/gmock.h>

#include <atomic>
#include <thread>

namespace lodestar
{

/// What stands above the model defines it; here it counts how often it is destroyed, and proves what it is asked.
class FeedDictionary
{
public:
    explicit FeedDictionary(int theNumber) : number(theNumber), again(theNumber) {}
    ~FeedDictionary() { ++destroyed; }
    FeedDictionary(const FeedDictionary&) = delete;
    FeedDictionary& operator=(const FeedDictionary&) = delete;

    const int number;
    const int again;
    static inline std::atomic<int> destroyed = 0;
};

namespace
{

class CorvelTests : public ::testing::Test
{
public:
    CorvelTests() { StoreStack::shared().setApplicationDocumentsDirectory(folder.path() / "Documents"); }
    ~CorvelTests() override { StoreStack::shared().close(); }
    CorvelTests(const CorvelTests&) = delete;
    CorvelTests& operator=(const CorvelTests&) = delete;

protected:
    static ObjectContext& context() { return StoreStack::shared().managedObjectContext(); }
    static CorvelRef insert() { return std::static_pointer_cast<Corvel>(context().insertNewObject("Corvel")); }
    static std::vector<CorvelRef> fetch()
    {
        std::vector<CorvelRef> result;
        const auto objects = context().fetchAll(Corvel::entityName);
        for (const auto& object : objects.value()) {
            result.push_back(std::dynamic_pointer_cast<Corvel>(object));
        }
        return result;
    }

    const ScratchFolder folder;
};

TEST_F(CorvelTests, AttributesAreKeptAndTheRestIsNot)
{
    const CorvelRef demo = insert();
    demo->setName("Demo Corvel");
    demo->setAddress("127.0.0.1");
    demo->setDemo(true);
    const CorvelRef user = insert();
    user->setDemo(false);
    user->setName("");
    user->setAddress("console.example ");
    user->setUsername("hscroot");
    user->setPassword("pass\u00E9");
    user->setVersion("V8R8.1.0.(null)");
    user->isOnline = user->completedFetch = true;
    user->numMSErrors = 3;
    user->setRestData(std::make_shared<FeedDictionary>(1));
    const auto group = std::static_pointer_cast<Group>(context().insertNewObject(Group::entityName));
    group->setName("racks");
    StoreStack::shared().saveContext();
    EXPECT_FALSE(context().hasChanges());
    StoreStack::shared().close();

    const auto corvels = fetch();
    ASSERT_EQ(corvels.size(), 2U);
    EXPECT_EQ(corvels[0]->name(), "Demo Corvel");
    EXPECT_EQ(corvels[0]->address(), "127.0.0.1");
    EXPECT_EQ(corvels[0]->demo(), 1);
    EXPECT_EQ(corvels[0]->username(), std::nullopt);
    EXPECT_EQ(corvels[0]->password(), std::nullopt);
    EXPECT_EQ(corvels[0]->version(), std::nullopt);
    EXPECT_EQ(corvels[1]->name(), "");
    EXPECT_EQ(corvels[1]->address(), "console.example ");
    EXPECT_EQ(corvels[1]->demo(), 0);
    EXPECT_EQ(corvels[1]->username(), "hscroot");
    EXPECT_EQ(corvels[1]->password(), "pass\u00E9");
    EXPECT_EQ(corvels[1]->version(), "V8R8.1.0.(null)");
    EXPECT_FALSE(corvels[1]->isOnline);
    EXPECT_FALSE(corvels[1]->completedFetch);
    EXPECT_EQ(corvels[1]->numMSErrors, 0);
    EXPECT_EQ(corvels[1]->restData(), nullptr);
    EXPECT_EQ(std::static_pointer_cast<Group>(context().fetchAll("Group").value().at(0))->name(), "racks");
    EXPECT_EQ(insert()->demo(), 0) << "none reads as 0";
}
TEST_F(CorvelTests, ADeletedPasswordIsWipedOnTheMainQueuesNextTurn)
{
    for (const bool closedBefore : {false, true}) {
        const CorvelRef corvel = insert();
        corvel->setPassword("s3cret");
        StoreStack::shared().saveContext();
        context().deleteObject(corvel);
        StoreStack::shared().saveContext();
        if (closedBefore) {
            StoreStack::shared().close();
        }
        MainQueue::shared().drain();
        for (const auto& entry : std::filesystem::directory_iterator(folder.path() / "Documents")) {
            std::ifstream file(entry.path(), std::ios::binary);
            const std::string bytes(std::istreambuf_iterator<char>(file), {});
            EXPECT_THAT(bytes, ::testing::Not(::testing::HasSubstr("s3cret"))) << entry.path();
        }
    }
}

TEST_F(CorvelTests, TheLastFetchIsASnapshotOnEveryThread)
{
    FeedDictionary::destroyed = 0;
    constexpr int rounds = 20'000;
    const CorvelRef corvel = insert();
    std::vector<std::thread> readers;
    readers.reserve(3);
    std::atomic<bool> done = false;
    std::atomic<int> torn = 0;
    for (int i = 0; i < 3; ++i) {
        readers.emplace_back([&] {
            while (!done) {
                if (const auto feeds = corvel->restData(); feeds != nullptr && feeds->number != feeds->again) {
                    ++torn;
                }
            }
        });
    }
    for (int i = 0; i < rounds; ++i) {
        corvel->setRestData(i % 10 == 0 ? nullptr : std::make_shared<FeedDictionary>(i));
    }
    const auto held = corvel->restData();
    corvel->setRestData(nullptr);
    done = true;
    for (std::thread& reader : readers) {
        reader.join();
    }
    EXPECT_EQ(torn, 0);
    EXPECT_EQ(held->number, rounds - 1);
    EXPECT_EQ(FeedDictionary::destroyed, rounds - rounds / 10 - 1) << "all but the one that is held";
}

TEST_F(CorvelTests, ChangesOfASnapshotAreNotLost)
{
    const auto corvel = std::make_shared<Corvel>();
    const auto increase = [&corvel] {
        for (int i = 0; i < 2000; ++i) {
            corvel->changeRestData([](const std::shared_ptr<const FeedDictionary>& feeds) {
                return std::make_shared<const FeedDictionary>(feeds != nullptr ? feeds->number + 1 : 1);
            });
        }
    };
    std::thread other(increase);
    increase();
    other.join();
    EXPECT_EQ(corvel->restData()->number, 4000);
}

} // namespace

} // namespace lodestar
