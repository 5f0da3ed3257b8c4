// SPDX-License-Identifier: Apache-2.0
#include "Application/Model/Corvel.h"
#include "Application/Model/StoreStack.h"
#include "Feedback/VireoLogger.h"
#include "Tests/Support/ScratchFolder.h"

#include <SQLiteCpp/Database.h>
#include <gmock/gmock.h>

#include <cstdio>

namespace lodestar
{

namespace
{

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;

class StoreStackTests : public ::testing::Test
{
public:
    StoreStackTests() { StoreStack::shared().setApplicationDocumentsDirectory(folder); }
    ~StoreStackTests() override { StoreStack::shared().close(); }
    StoreStackTests(const StoreStackTests&) = delete;
    StoreStackTests& operator=(const StoreStackTests&) = delete;

protected:
    /// From now on every line goes to standard error in one form, and to the log file in the folder.
    std::shared_ptr<void> showLog() const
    {
        EXPECT_TRUE(VireoLogger::openLogFolder(folder / "Logs"));
        return VireoLogger::addListener([](const VireoLogger::Entry& entry) {
            std::fprintf(stderr, "<%d %d %s %s|%s>\n", entry.level, entry.tag, std::string(entry.fileName).c_str(),
                         std::string(entry.method).c_str(), std::string(entry.message).c_str());
        });
    }

    std::string contents(const std::filesystem::path& file) const
    {
        std::ifstream stream(folder / file, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    const ScratchFolder scratch;
    const std::filesystem::path& folder = scratch.path();
};

TEST_F(StoreStackTests, AStoreThatCannotBeOpenedEndsTheProcessWithOneLine)
{
    const std::string foreign(3000, 'z');
    std::ofstream(folder / "Lodestar.sqlite") << foreign;
    const std::string start = "<2 0 Shared/Application/AppDelegate -\\[AppDelegate persistentStoreCoordinator\\]"
                              "\\|Unresolved error YOUR_ERROR_DOMAIN 9999.*, .*";
    EXPECT_EXIT(
        {
            const auto listener = showLog();
            StoreStack::shared().managedObjectContext();
        },
        ::testing::KilledBySignal(SIGABRT),
        AllOf(::testing::ContainsRegex(start), HasSubstr("Failed to initialize the application's saved data"),
              HasSubstr("There was an error creating or loading the application's saved data."),
              HasSubstr("The file is not a database.")));
    EXPECT_EQ(contents("Lodestar.sqlite"), foreign);
    EXPECT_THAT(contents("Logs/lodestar.log"), HasSubstr("Unresolved error YOUR_ERROR_DOMAIN 9999"));

    StoreStack::shared().setApplicationDocumentsDirectory("");
    EXPECT_EXIT(StoreStack::shared().managedObjectContext(), ::testing::KilledBySignal(SIGABRT),
                HasSubstr("Lodestar cannot keep its consoles and ends: YOUR_ERROR_DOMAIN 9999"));
}

TEST_F(StoreStackTests, ASaveThatFailsEndsTheProcessWithOneLine)
{
    StoreStack& stack = StoreStack::shared();
    stack.saveContext();
    EXPECT_FALSE(std::filesystem::exists(folder / "Lodestar.sqlite")) << "saving opens nothing";
    std::static_pointer_cast<Corvel>(stack.managedObjectContext().insertNewObject("Corvel"))->setPassword("s3cret");
    SQLite::Database(folder / "Lodestar.sqlite", SQLite::OPEN_READWRITE).exec("DROP TABLE Corvel");
    EXPECT_EXIT(
        {
            const auto listener = showLog();
            stack.saveContext();
        },
        ::testing::KilledBySignal(SIGABRT),
        AllOf(::testing::ContainsRegex("<2 0 Shared/Application/AppDelegate -\\[AppDelegate saveContext\\]"
                                       "\\|Unresolved error ObjectStore 1.*no such table.*, \\{"),
              Not(HasSubstr("s3cret"))));
    EXPECT_THAT(contents("Logs/lodestar.log"), HasSubstr("-[AppDelegate saveContext]"));
}

} // namespace

} // namespace lodestar
