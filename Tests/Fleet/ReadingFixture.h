// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Readings.h"
#include "Fleet/Registry.h"
#include "Tests/REST/RESTHandlerFixture.h"

#include <algorithm>
#include <memory>
#include <string_view>

namespace lodestar::test
{

inline const FeedReading& feedOf(const Reading& reading, std::string_view type)
{
    return *std::ranges::find(reading.feeds, type, &FeedReading::type);
}

/// Simulated consoles that are refreshed.
class ReadingTest : public ConsoleTest
{
protected:
    void TearDown() override
    {
        Readings::shared().forgetAll();
        ConsoleTest::TearDown();
    }
    static std::shared_ptr<const Reading> readingOf(const CorvelRef& corvel) { return Readings::shared().of(*corvel); }
    /// Refreshes the console and returns its reading.
    static std::shared_ptr<const Reading> refreshed(const CorvelRef& corvel)
    {
        const auto done = fetchInventory(corvel, Urgency::Fleet);
        MainQueue::shared().runUntil([&done] { return !done.isPending(); }, std::chrono::seconds(60));
        return readingOf(corvel);
    }
};

} // namespace lodestar::test
