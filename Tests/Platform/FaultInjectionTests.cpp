// SPDX-License-Identifier: Apache-2.0
// Every single allocation, write, sync and rename of a store at work refused, one after the other.
#include "Tests/Injection.h"
#include "Tests/LongRun.h"
#include "Tests/Platform/StoreFixture.h"

#include <gmock/gmock.h>

namespace lodestar
{
namespace
{

using injection::Call;
using injection::Failing;
using test::StoreFixture;
using ::testing::AnyOf;
using ::testing::ElementsAre;

class FaultInjectionTests : public StoreFixture
{
protected:
    void clear() const
    {
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            std::filesystem::remove_all(entry);
        }
    }
    /// Runs the work with call after call of the kind failing, until none is left; how many have.
    template <typename Work>
    static int forEachFailure(Call call, const Work& work)
    {
        // Allocations are by far the most: a few of them, and all in the long run.
        const int step = call == Call::Allocation ? rounds(7, 1) : 1;
        int number = 0;
        for (bool happened = true; happened; number += step) {
            SCOPED_TRACE(::testing::Message() << "call " << number << " of kind " << static_cast<int>(call));
            work(number, happened);
            if (HasFatalFailure() || number > 100'000) {
                ADD_FAILURE() << "given up";
                break;
            }
        }
        return number / step - 1;
    }

    int tries = 0;
};

constexpr auto everyCall = {Call::Allocation, Call::Write, Call::Sync, Call::Rename};

TEST_F(FaultInjectionTests, ASaveKeepsTheOldStateOrMakesTheNewOne)
{
    for (const Call call : everyCall) {
        const int count = forEachFailure(call, [&](int number, bool& happened) {
            clear();
            auto context = open();
            const ObjectRef changed = insert(*context, "changed");
            const ObjectRef deleted = insert(*context, "deleted");
            ASSERT_TRUE(context->save().ok());
            changed->setAttribute(Title, std::string("changed 2"));
            changed->setAttribute(Note, std::string(20'000, 'n'));
            context->deleteObject(deleted);
            const ObjectRef inserted = insert(*context, "inserted");
            std::optional<Result<void>> saved;
            {
                const Failing failing(call, number);
                saved.emplace(context->save());
            }
            happened = Failing::happened();
            if (!saved->ok()) {
                EXPECT_EQ(saved->error().domain, storeErrorDomain);
                EXPECT_FALSE(saved->error().localizedDescription.empty());
                EXPECT_TRUE(context->hasChanges());
                // A commit whose sync failed may be whole on the disk, though nobody may count on it.
                EXPECT_THAT(storedTitles(),
                            AnyOf(ElementsAre("changed", "deleted"), ElementsAre("changed 2", "inserted")));
                EXPECT_THAT(fetch(*context), ElementsAre(changed, inserted));
                ASSERT_TRUE(context->save().ok());
            }
            EXPECT_FALSE(context->hasChanges());
            EXPECT_THAT(storedTitles(), ElementsAre("changed 2", "inserted"));
            EXPECT_THAT(fetch(*context), ElementsAre(changed, inserted));
        });
        EXPECT_GT(count, call == Call::Allocation ? 10 : call == Call::Rename ? -1 : 0);
        tries += count;
    }
    RecordProperty("tries", tries);
}

TEST_F(FaultInjectionTests, AStoreIsMadeWholeOrNotAtAllAndReadWholeOrNotAtAll)
{
    for (const bool exists : {false, true}) {
        for (const Call call : everyCall) {
            tries += forEachFailure(call, [&](int number, bool& happened) {
                clear();
                if (exists) {
                    const auto context = open();
                    insert(*context, "a");
                    insert(*context, "b");
                    ASSERT_TRUE(context->save().ok());
                }
                {
                    auto description = model();
                    const std::string where = path.string();
                    const Failing failing(call, number);
                    const auto opened = ObjectContext::open(where, std::move(description));
                    const auto objects = opened ? opened.value()->fetchAll("Item") : opened.error();
                    happened = Failing::happened();
                    if (opened && objects) {
                        EXPECT_EQ(objects.value().size(), exists ? 2U : 0U);
                    }
                    EXPECT_TRUE(happened || (opened && objects));
                }
                for (const auto& entry : std::filesystem::directory_iterator(folder)) {
                    EXPECT_EQ(entry.path().string().rfind(path.string(), 0), 0U);
                    EXPECT_NE(entry.path().extension(), ".sqlite-XXXXXX");
                }
                EXPECT_EQ(fetch(*open()).size(), exists ? 2U : 0U);
            });
        }
    }
    RecordProperty("tries", tries);
}

} // namespace
} // namespace lodestar
