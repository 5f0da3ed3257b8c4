// SPDX-License-Identifier: Apache-2.0
#include "Fleet/History.h"

#include "Controllers/REST/RESTHandler.h"
#include "Fleet/HistoryKeeper.h"
#include "Fleet/Readings.h"
#include "Platform/NotificationCenter.h"
#include "Platform/Queues/DispatchQueue.h"
#include "Platform/Queues/MainQueue.h"

#include <atomic>
#include <utility>

namespace lodestar
{

struct History::State {
    const DispatchQueue queue{"org.ornis.lodestar.history", DispatchQueue::Kind::Serial};
    HistoryKeeper keeper;
    std::atomic<int> readings = 0;       ///< that wait to be compared
    std::atomic<bool> isPosting = false; ///< a notification waits on the main queue
    // Only on the queue:
    std::function<void(const std::vector<Change>&)> listener;
    std::weak_ptr<const ChangeList> list; ///< as long as nothing changed since

    void didChange()
    {
        list.reset();
        if (!isPosting.exchange(true)) {
            MainQueue::shared().async([this] {
                isPosting = false;
                NotificationCenter::defaultCenter().postNotification("HistoryDidChange");
            });
        }
    }

    void compare(const Corvel& corvel, const std::string& address, const std::string& name, const Reading& reading,
                 const FeedDictionary* feeds)
    {
        const bool isLast = --readings == 0;
        // A refresh may outlive its console, whose bytes are gone by now.
        if (!corvel.isDeleted()) {
            const Difference difference = keeper.add(address, name, reading, feeds);
            if (!difference.changes.empty() && listener) {
                listener(difference.changes);
            }
            // A second reading lets changes be seen, even one that finds none.
            const auto seen = list.lock();
            const bool mayShowNow =
                seen != nullptr && !seen->mayShow && difference.memory != nullptr && difference.memory->wasReadAgain;
            if (difference.memoryChanged || !difference.changes.empty() || mayShowNow) {
                didChange();
            }
        }
        // Readings that come together are written together: each writing waits for the disk.
        if (isLast) {
            write();
        }
    }

    void write()
    {
        const bool wasSetAside = keeper.wasSetAside();
        keeper.write();
        if (keeper.wasSetAside() != wasSetAside) {
            didChange();
        }
    }
};

History::History() : m_state(std::make_unique<State>()) {}

History& History::shared()
{
    // Never destroyed: blocks may wait on its queue when the process ends.
    static History* const history = new History;
    return *history;
}

void History::open(const std::string& folder)
{
    m_state->queue.async([state = m_state.get(), folder] {
        state->keeper.open(folder);
        state->didChange();
    });
}

void History::whenOpen(std::function<void()> known)
{
    whenWritten(std::move(known));
}

bool History::wasSetAside() const
{
    return m_state->keeper.wasSetAside();
}

void History::add(const CorvelRef& corvel, const std::shared_ptr<const Reading>& reading,
                  const std::shared_ptr<const FeedDictionary>& feeds)
{
    const auto address = corvel->address();
    if (!address) {
        return;
    }
    ++m_state->readings;
    m_state->queue.async(
        [state = m_state.get(), corvel, reading, feeds, address = *address, name = corvel->name().value_or("")] {
            state->compare(*corvel, address, name, *reading, feeds.get());
        });
}

std::shared_ptr<const ConsoleMemory> History::memoryOf(const std::string& address) const
{
    return m_state->keeper.memoryOf(address);
}

void History::expectStop(const std::string& address, const ObjectKey& object)
{
    m_state->queue.async([state = m_state.get(), address, object] {
        if (state->keeper.expectStop(address, object)) {
            state->didChange();
            state->write();
        }
    });
}

void History::changes(std::function<void(std::shared_ptr<const ChangeList>)> then) const
{
    m_state->queue.async([state = m_state.get(), then = std::move(then)] {
        std::shared_ptr<const ChangeList> list = state->list.lock();
        if (list == nullptr) {
            list = std::make_shared<const ChangeList>(state->keeper.changes());
            state->list = list;
        }
        MainQueue::shared().async([then, list] { then(list); });
    });
}

void History::setListener(std::function<void(const std::vector<Change>&)> listener)
{
    m_state->queue.async(
        [state = m_state.get(), listener = std::move(listener)]() mutable { state->listener = std::move(listener); });
}

void History::whenWritten(std::function<void()> then) const
{
    m_state->queue.async([then = std::move(then)] { MainQueue::shared().async(then); });
}

void History::forget(const std::string& address)
{
    m_state->queue.async([state = m_state.get(), address] {
        state->keeper.forget({address});
        state->didChange();
    });
}

void History::forgetAll()
{
    m_state->queue.sync([state = m_state.get()] {
        state->keeper.forgetAll();
        state->didChange();
    });
}

void History::forgetAllBut(std::vector<std::string> addresses)
{
    m_state->queue.async([state = m_state.get(), addresses = std::move(addresses)] {
        if (const auto others = state->keeper.addressesBut(addresses); !others.empty()) {
            state->keeper.forget(others);
            state->didChange();
        }
    });
}

std::optional<std::string> History::setting(const std::string& name) const
{
    return m_state->keeper.setting(name);
}

void History::setSetting(const std::string& name, std::optional<std::string> value)
{
    m_state->keeper.setSetting(name, std::move(value));
    m_state->queue.async([state = m_state.get()] { state->write(); });
}

void History::close()
{
    m_state->queue.sync([state = m_state.get()] {
        state->keeper.close();
        state->list.reset();
    });
}

void openHistory(const std::string& folder)
{
    History& history = History::shared();
    history.open(folder);
    std::vector<std::string> addresses;
    for (const CorvelRef& corvel : RESTHandler::sharedInstance().corvelList()) {
        addresses.push_back(corvel->address().value_or(""));
    }
    history.forgetAllBut(std::move(addresses));
    history.whenOpen([] {
        for (const CorvelRef& corvel : RESTHandler::sharedInstance().corvelList()) {
            const auto memory = History::shared().memoryOf(corvel->address().value_or(""));
            if (memory == nullptr) {
                continue;
            }
            Reading before;
            before.lastComplete = memory->lastComplete;
            before.versionThen = memory->versionThen;
            if (memory->offlineSince) {
                before.offlineSince = memory->offlineSince->time;
            }
            if (memory->certificate) {
                CertificateReading certificate;
                certificate.shown.fingerprint = *memory->certificate;
                certificate.compared = CertificateChange::Unchanged;
                if (memory->certificateSince) {
                    certificate.since = memory->certificateSince->time;
                }
                before.certificate = std::move(certificate);
            }
            Readings::shared().restore(corvel, before);
        }
    });
}

} // namespace lodestar
