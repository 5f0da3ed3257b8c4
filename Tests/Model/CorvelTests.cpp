// SPDX-License-Identifier: Apache-2.0
#include "Application/Model/Corvel.h"
#include "Application/Model/Group.h"
#include "Application/Model/StoreStack.h"
#include "Feedback/VireoLogger.h"
#include "Platform/Queues/MainQueue.h"
#include "Tests/Support/ScratchFolder.h"

#include <SQLiteCpp/Database.h>
#include <gmock/gmock.h>

#include <atomic>
#include <thread>

namespace lodestar
{

/// What stands above the model defines it; here it proves to be whole.
class FeedDictionary
{
public:
    explicit FeedDictionary(int theNumber) : number(theNumber), again(theNumber) {}

    const int number;
    const int again;
};

namespace
{

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

class CorvelTests : public ::testing::Test
{
protected:
    void SetUp() override { StoreStack::shared().setApplicationDocumentsDirectory(folder.file("Documents")); }
    void TearDown() override { StoreStack::shared().close(); }

    static ObjectContext& context() { return StoreStack::shared().managedObjectContext(); }
    static CorvelRef insert() { return std::static_pointer_cast<Corvel>(context().insertNewObject("Corvel")); }
    const ScratchFolder folder;
};

TEST_F(CorvelTests, AttributesAreKeptAndTheRestIsNot)
{
    insert()->setDemo(true);
    const CorvelRef user = insert();
    user->setName("");
    user->setAddress("console.example ");
    user->setUsername("hscroot");
    user->setPassword("pass\u00E9");
    user->setVersion("V8R8.1.0.(null)");
    user->isOnline = true;
    user->setRestData(std::make_shared<FeedDictionary>(1));
    std::static_pointer_cast<Group>(context().insertNewObject(Group::entityName))->setName("racks");
    StoreStack::shared().saveContext();
    StoreStack::shared().close();

    std::vector<std::string> stored;
    const auto objects = context().fetchAll(Corvel::entityName);
    for (const auto& object : objects.value()) {
        const auto corvel = std::dynamic_pointer_cast<Corvel>(object);
        EXPECT_FALSE(corvel->isOnline || corvel->restData() != nullptr);
        stored.push_back("demo " + std::to_string(corvel->demo()));
        for (const auto& value :
             {corvel->name(), corvel->address(), corvel->username(), corvel->password(), corvel->version()}) {
            stored.back() += value ? ", '" + *value + "'" : ", none";
        }
    }
    EXPECT_THAT(stored, ElementsAre("demo 1, none, none, none, none, none",
                                    "demo 0, '', 'console.example ', 'hscroot', 'pass\u00E9', 'V8R8.1.0.(null)'"));
    EXPECT_EQ(std::static_pointer_cast<Group>(context().fetchAll("Group").value().at(0))->name(), "racks");
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
            EXPECT_THAT(folder.read(entry.path()), Not(HasSubstr("s3cret"))) << entry.path();
        }
    }
}

TEST_F(CorvelTests, TheLastFetchIsASnapshotOnEveryThreadAndNoChangeOfItIsLost)
{
    constexpr int rounds = 2000;
    const auto corvel = std::make_shared<Corvel>();
    std::atomic<int> writing = 2;
    std::vector<std::jthread> threads;
    for (int writer = 0; writer < 2; ++writer) {
        threads.emplace_back([&] {
            for (int i = 0; i < rounds; ++i) {
                corvel->changeRestData([](const std::shared_ptr<const FeedDictionary>& feeds) {
                    return std::make_shared<const FeedDictionary>(feeds != nullptr ? feeds->number + 1 : 1);
                });
            }
            --writing;
        });
    }
    for (int last = 0; writing > 0;) {
        if (const auto feeds = corvel->restData()) {
            ASSERT_EQ(feeds->number, feeds->again);
            ASSERT_GE(feeds->number, last);
            last = feeds->number;
        }
    }
    EXPECT_EQ(corvel->restData()->number, 2 * rounds);
}

TEST_F(CorvelTests, ASaveThatFailsEndsTheProcessWithOneLine)
{
    StoreStack::shared().saveContext();
    EXPECT_FALSE(std::filesystem::exists(folder.file("Documents/Lodestar.sqlite"))) << "saving opens nothing";
    insert()->setPassword("s3cret");
    SQLite::Database(folder.file("Documents/Lodestar.sqlite"), SQLite::OPEN_READWRITE).exec("DROP TABLE Corvel");
    EXPECT_EXIT(
        {
            VireoLogger::openLogFolder(folder.file("Logs"));
            StoreStack::shared().saveContext();
        },
        ::testing::KilledBySignal(SIGABRT), HasSubstr("Lodestar cannot keep its consoles and ends: "));
    const std::string log = folder.read("Logs/lodestar.log");
    EXPECT_THAT(log,
                ::testing::ContainsRegex(" 2 0 .* Shared/Application/AppDelegate:[0-9]+ -.AppDelegate saveContext. "
                                         "Unresolved error ObjectStore 1.*no such table.*, "));
    EXPECT_THAT(log, Not(HasSubstr("s3cret")));
}

} // namespace

} // namespace lodestar
