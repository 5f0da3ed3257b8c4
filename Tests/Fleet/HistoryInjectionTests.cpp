// SPDX-License-Identifier: Apache-2.0
// Every single write and sync of a history at work refused, one after the other.
#include "Tests/Fleet/HistoryFixture.h"
#include "Tests/Support/Injection.h"

#include <gmock/gmock.h>

namespace lodestar::test
{
namespace
{

using injection::Call;
using injection::Extent;
using injection::Failing;
using injection::forEachFailure;
using injection::Kind;
using testing::IsEmpty;

class HistoryInjectionTests : public HistoryFixture
{
protected:
    std::string stateOf(const std::string& address) const
    {
        const auto memory = keeper->memoryOf(address);
        return memory != nullptr ? memory->objects.begin()->second.state : "(none)";
    }
};

TEST_F(HistoryInjectionTests, WhatOneFailureKeepsOutOfTheFileTheNextWritingBringsIn)
{
    int tries = 0;
    for (const Kind kind : {Kind{Call::Write}, Kind{Call::Write, Extent::Lasting}, Kind{Call::Sync}}) {
        tries += forEachFailure(kind, 1, [&](int number) {
            keeper->close();
            std::filesystem::remove_all(folder);
            keeper->open(folder);
            HandMadeConsole a("a");
            HandMadeConsole doomed("doomed-console");
            read(a, "operating");
            read(doomed, "operating");
            {
                const Failing failing(kind, number);
                read(a, "error");
                keeper->forget({"doomed-console.example"});
                keeper->setSetting("watch", "on");
                keeper->write();
            }
            EXPECT_EQ(stateOf("a.example"), "error");
            EXPECT_EQ(stateOf("doomed-console.example"), "(none)");
            // A commit whose sync failed may be whole in the file, though nobody may count on it.
            read(a, "incomplete");
            kill();
            EXPECT_EQ(stateOf("a.example"), "incomplete");
            EXPECT_EQ(stateOf("doomed-console.example"), "(none)");
            EXPECT_EQ(keeper->setting("watch"), "on");
            EXPECT_THAT(filesWith("doomed-console"), IsEmpty());
            const auto words = states();
            ASSERT_GE(words.size(), 2U);
            EXPECT_EQ(words.at(0), "incomplete");
            EXPECT_EQ(words.at(1), "error");
            EXPECT_FALSE(keeper->wasSetAside());
        });
    }
    EXPECT_GT(tries, 20);
}

} // namespace
} // namespace lodestar::test
