// SPDX-License-Identifier: Apache-2.0
#include "Fleet/WatchSurroundings.h"

#include "Application/Model/Setting.h"
#include "Controllers/REST/RESTHandler.h"
#include "Fleet/Attention.h"
#include "Fleet/History.h"
#include "Fleet/Registry.h"
#include "Platform/Queues/DispatchQueue.h"
#include "Platform/Queues/MainQueue.h"
#include "Platform/UserDefaults.h"

#include <algorithm>
#include <ctime>
#include <iterator>
#include <mutex>
#include <utility>

namespace lodestar
{
namespace
{

/// Gathers the history's changes while a refresh of the watch runs. The history's queue adds, the main thread takes.
class ChangeCollector
{
public:
    void begin()
    {
        const std::lock_guard lock(m_mutex);
        m_changes.clear();
        m_isOpen = true;
    }
    void add(const std::vector<Change>& changes)
    {
        const std::lock_guard lock(m_mutex);
        if (m_isOpen) {
            m_changes.insert(m_changes.end(), changes.begin(), changes.end());
        }
    }
    std::vector<Change> end()
    {
        const std::lock_guard lock(m_mutex);
        m_isOpen = false;
        return std::exchange(m_changes, {});
    }

private:
    std::mutex m_mutex;
    std::vector<Change> m_changes;
    bool m_isOpen = false;
};

class ProcessSurroundings final : public WatchSurroundings
{
public:
    WatchSchedule::Moment now() const override
    {
#ifdef CLOCK_BOOTTIME
        timespec time{};
        clock_gettime(CLOCK_BOOTTIME, &time);
        return WatchSchedule::Moment(std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec));
#else
        return std::chrono::steady_clock::now();
#endif
    }
    WallTime wallNow() const override
    {
        return std::chrono::system_clock::now();
    }
    std::chrono::minutes sinceMidnight(WallTime time) const override
    {
        const std::time_t seconds = std::chrono::system_clock::to_time_t(time);
        std::tm local{};
        localtime_r(&seconds, &local);
        return std::chrono::hours(local.tm_hour) + std::chrono::minutes(local.tm_min);
    }
    void later(std::chrono::milliseconds delay, std::function<void()> function) override
    {
        MainQueue::shared().asyncAfter(delay, std::move(function));
    }

    std::vector<CorvelRef> consoles() const override
    {
        return RESTHandler::sharedInstance().corvelList();
    }
    FleetReading fleet() const override
    {
        return Readings::shared().ofFleet();
    }
    std::shared_ptr<const Reading> readingOf(const Corvel& corvel) const override
    {
        return Readings::shared().of(corvel);
    }
    void refresh(const CorvelRef& corvel, std::function<void()> ended) override;

    void beginCollecting() override
    {
        if (!std::exchange(m_listens, true)) {
            History::shared().setListener(
                [changes = m_changes](const std::vector<Change>& batch) { changes->add(batch); });
        }
        m_changes->begin();
    }
    void endCollecting(std::function<void(std::vector<Change>)> then) override
    {
        History::shared().whenWritten([changes = m_changes, then = std::move(then)] { then(changes->end()); });
    }
    void findings(std::function<void(Findings)> then) override
    {
        DispatchQueue::globalBackground().async([list = RESTHandler::sharedInstance().corvelListSnapshot(),
                                                 now = wallNow(), then = std::move(then)]() mutable {
            std::vector<ConsoleSnapshot> consoles;
            std::ranges::transform(*list, std::back_inserter(consoles), snapshotOf);
            MainQueue::shared().async([found = findingsOf(consoles, now), then = std::move(then)] { then(found); });
        });
    }

    std::optional<std::string> setting(const std::string& name) const override
    {
        return History::shared().setting(name);
    }
    void setSetting(const std::string& name, std::optional<std::string> value) override
    {
        History::shared().setSetting(name, std::move(value));
    }
    bool requiresPasscode() const override
    {
        return UserDefaults::standard().boolForKey(Setting::requirePassword);
    }

private:
    const std::shared_ptr<ChangeCollector> m_changes = std::make_shared<ChangeCollector>();
    bool m_listens = false;
};

void ProcessSurroundings::refresh(const CorvelRef& corvel, std::function<void()> ended)
{
    // The record stays marked as fetched, which is what the dashboard waits for: it is not drawn anew.
    refreshCorvel(corvel, Urgency::Fleet)
        .thenOnMain([ended](const std::string&) { ended(); }, [ended](const Error& /*error*/) { ended(); });
}

} // namespace

std::shared_ptr<WatchSurroundings> WatchSurroundings::ofProcess()
{
    return std::make_shared<ProcessSurroundings>();
}

} // namespace lodestar
