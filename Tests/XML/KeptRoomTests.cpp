// SPDX-License-Identifier: Apache-2.0
#include "XML/KeptBytes.h"
#include "XML/KeptRoom.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <future>
#include <memory>
#include <vector>

namespace lodestar::test
{

namespace
{

constexpr std::size_t feeds = 1000; ///< bytes

struct Console {
    std::promise<std::shared_ptr<KeptRoom::Share>> begun;
    std::future<std::shared_ptr<KeptRoom::Share>> share = begun.get_future();

    void ask(Urgency urgency = Urgency::Fleet)
    {
        KeptRoom::whenThereIs(feeds, urgency,
                              [this](std::shared_ptr<KeptRoom::Share> room) { begun.set_value(std::move(room)); });
    }
    bool hasBegun() const { return share.wait_for(std::chrono::milliseconds(50)) == std::future_status::ready; }
};

TEST(KeptRoomTests, ConsolesWaitForEachOtherWhereOldAndNewFeedsDoNotFitBesideEachOther)
{
    // The last bytes are for small documents only.
    constexpr std::size_t forSmall = 4UL * 1024 * 1024;
    KeptBytes large;
    ASSERT_TRUE(large.resize(KeptBytes::limit() - KeptBytes::total() - forSmall));
    std::vector<std::unique_ptr<KeptBytes>> others;
    for (std::size_t left = forSmall; left > 0; left -= others.back()->size()) {
        others.push_back(std::make_unique<KeptBytes>());
        ASSERT_TRUE(others.back()->resize(left > 2 * feeds ? std::min<std::size_t>(left - 2 * feeds, 16'000) : left));
    }
    Console first;
    Console second;
    Console third;
    Console persons;
    first.ask();
    EXPECT_TRUE(first.hasBegun()) << "nobody else would make room for it";
    second.ask();
    third.ask();
    persons.ask(Urgency::Person);
    EXPECT_FALSE(persons.hasBegun());
    others.pop_back();
    EXPECT_TRUE(persons.hasBegun()) << "a person goes first";
    EXPECT_FALSE(second.hasBegun()) << "that was all";
    first.share.get();
    EXPECT_TRUE(second.hasBegun());
    persons.share.get()->didKeep(feeds);
    EXPECT_TRUE(third.hasBegun()) << "what is kept is promised no more";
}

} // namespace
} // namespace lodestar::test
