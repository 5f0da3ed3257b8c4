// SPDX-License-Identifier: Apache-2.0
// How much memory answers may take, whatever is sent.
#include "Platform/URLLoading/HeldBytes.h"
#include "Tests/Platform/URLLoadingFixture.h"
#include "Tests/Support/ProcessMemory.h"

#include <algorithm>
#include <thread>

namespace lodestar::test
{

namespace
{

constexpr std::size_t megabyte = 1024UL * 1024;

#if defined(__SANITIZE_THREAD__) || defined(__SANITIZE_ADDRESS__)
constexpr double slack = 4e9; // they keep books, and what was freed
#else
constexpr double slack = 150e6;
#endif

/// Looks until its end how much transfers hold.
class HeldPeak
{
public:
    ~HeldPeak()
    {
        m_stop = true;
        m_thread.join();
        const std::size_t limit = TransferLimits::shared().heldBytes;
        EXPECT_LE(m_peak.load(), limit);
        EXPECT_GE(m_peak.load(), m_least);
        EXPECT_EQ(HeldBytes::total(), 0U);
        EXPECT_LT(memory("VmHWM") - m_before, static_cast<double>(limit) + slack);
    }
    explicit HeldPeak(std::size_t least) : m_least(least) {}
    HeldPeak(const HeldPeak&) = delete;
    HeldPeak& operator=(const HeldPeak&) = delete;

private:
    const std::size_t m_least;
    const double m_before = startPeak();
    std::atomic<bool> m_stop = false;
    std::atomic<std::size_t> m_peak = 0;
    std::thread m_thread{[this] {
        while (!m_stop) {
            m_peak = std::max(m_peak.load(), HeldBytes::total());
            std::this_thread::sleep_for(std::chrono::microseconds(200));
        }
    }};
};

bool isTooLarge(const Result<URLLoad>& load)
{
    return !load && load.error().code == static_cast<int>(URLErrorCode::DataLengthExceedsMaximum);
}

} // namespace

TEST_F(URLLoadingTest, HostileSizesAreCutAtTheLimits)
{
    EXPECT_LE(TransferLimits::shared().heldBytes, 192 * megabyte);
    EXPECT_EQ(TransferLimits::ofDevice(2048 * megabyte).heldBytes, 128 * megabyte);
    simulator::SimulatorProcess simulator(settingsOf(2));
    const URLRequest request = feedRequest(simulator, logOn(simulator));
    const URLRequest other = feedRequest(simulator, logOn(simulator, 1), 1);
    const HeldPeak peak(1);
    for (const std::string fault : {"hugeBody", "hugeBody:chunked", "gzipBomb", "hugeHeaders", "endlessChunk"}) {
        SCOPED_TRACE(fault);
        simulator.setFault(fault.substr(0, fault.find(':')) + ":ManagedSystem:0");
        if (fault.ends_with(":chunked")) {
            simulator.setFault("chunked:ManagedSystem:0");
        }
        EXPECT_EQ(loadTogether({request, request, request, other}, &isTooLarge), 3);
        EXPECT_TRUE(loadAsynchronously(other).ok());
        for (const Result<URLLoad>& load : loadEveryWay(request)) {
            EXPECT_TRUE(isTooLarge(load));
        }
        simulator.clearFaults();
    }
    m_queue.waitUntilAllOperationsAreFinished();
}

TEST_F(URLLoadingTest, ABodysLimitCountsWhatIsUnpacked)
{
    simulator::SimulatorProcess simulator{{}};
    const URLRequest request = feedRequest(simulator, logOn(simulator));
    simulator.setFault("largeGzip:All"); // 40 MB of blanks, packed into a thousandth of that
    TransferLimits::shared().bodyBytes = 8 * megabyte;
    for (const Result<URLLoad>& load : loadEveryWay(request)) {
        EXPECT_TRUE(isTooLarge(load));
    }
}

TEST_F(URLLoadingTest, LargeBodiesOfManyConsolesTakeTurnsWithinTheBudget)
{
    simulator::SimulatorProcess simulator(settingsOf(4));
    std::vector<URLRequest> requests;
    for (int i = 0; i < simulator.consoleCount(); ++i) {
        requests.insert(requests.end(), 2, feedRequest(simulator, logOn(simulator, i), i));
    }
    for (const std::string fault : {"largeFeed", "largeGzip", "vastFeed"}) {
        SCOPED_TRACE(fault);
        simulator.setFault(fault + ":All");
        const std::size_t size = (fault == "vastFeed" ? 180 : 40) * megabyte;
        requests.resize(fault == "vastFeed" ? 1 : 8);
        const HeldPeak peak(size / 2);
        const auto isWhole = [size](const Result<URLLoad>& load) { return load && load.value().body.size() >= size; };
        EXPECT_EQ(loadTogether(requests, isWhole), std::ssize(requests));
        m_queue.waitUntilAllOperationsAreFinished();
        simulator.clearFaults();
    }
}

} // namespace lodestar::test
