// SPDX-License-Identifier: Apache-2.0
// Every single allocation, write, sync and rename of a store at work refused, one after the other.
#include "Tests/Support/Injection.h"
#include "Tests/Support/LongRun.h"
#include "Tests/Support/StoreFixture.h"

#include <gmock/gmock.h>

namespace lodestar
{

using injection::Call;
using injection::everyKind;
using injection::Failing;
using injection::forEachFailure;
using injection::Kind;
using ::testing::AnyOf;
using ::testing::ElementsAre;

using FaultInjectionTests = test::StoreFixture;

/// A few allocations, and all in the long run.
const int step = rounds(7, 1);

TEST_F(FaultInjectionTests, ASaveKeepsTheOldStateOrMakesTheNewOne)
{
    int tries = 0;
    for (const Kind kind : everyKind) {
        const int count = forEachFailure(kind, step, [&](int number) {
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
                const Failing failing(kind, number);
                saved.emplace(context->save());
            }
            if (!saved->ok()) {
                EXPECT_EQ(saved->error().domain, storeErrorDomain);
                EXPECT_FALSE(saved->error().localizedDescription.empty());
                EXPECT_TRUE(context->hasChanges());
                // A commit whose sync failed may be whole on the disk, though nobody may count on it.
                const auto titles = storedTitles();
                if (kind.call == Call::Write || titles != std::vector<std::string>{"changed 2", "inserted"}) {
                    EXPECT_THAT(titles, ElementsAre("changed", "deleted"));
                }
                EXPECT_THAT(fetch(*context), ElementsAre(changed, inserted));
                ASSERT_TRUE(context->save().ok());
            }
            EXPECT_FALSE(context->hasChanges());
            EXPECT_THAT(storedTitles(), ElementsAre("changed 2", "inserted"));
            EXPECT_THAT(fetch(*context), ElementsAre(changed, inserted));
        });
        EXPECT_GT(count, kind.call == Call::Allocation ? 10 : kind.call == Call::Rename ? -1 : 0);
        tries += count;
    }
    RecordProperty("tries", tries);
}

TEST_F(FaultInjectionTests, AStoreIsMadeWholeOrNotAtAllAndReadWholeOrNotAtAll)
{
    int tries = 0;
    for (const bool exists : {false, true}) {
        for (const Kind kind : everyKind) {
            tries += forEachFailure(kind, step, [&](int number) {
                clear();
                if (exists) {
                    makeStore({"a", "b"});
                }
                {
                    auto description = model();
                    const std::string where = path.string();
                    const Failing failing(kind, number);
                    const auto opened = ObjectContext::open(where, std::move(description));
                    const auto objects = opened ? opened.value()->fetchAll("Item") : opened.error();
                    if (opened && objects) {
                        EXPECT_EQ(objects.value().size(), exists ? 2U : 0U);
                    }
                    EXPECT_TRUE(Failing::happened() || (opened && objects));
                }
                for (const auto& entry : std::filesystem::directory_iterator(folder)) {
                    EXPECT_THAT(entry.path().extension(),
                                AnyOf(".sqlite", ".sqlite-journal", ".sqlite-wal", ".sqlite-shm"));
                }
                EXPECT_EQ(fetch(*open()).size(), exists ? 2U : 0U);
            });
        }
    }
    RecordProperty("tries", tries);
}

} // namespace lodestar
