// SPDX-License-Identifier: Apache-2.0
#include "Platform/URLLoading/Delivery.h"

#include "Platform/Queues/OwnThread.h"
#include "Platform/URLLoading/BodyMemory.h"

#include <algorithm>
#include <condition_variable>
#include <deque>
#include <limits>
#include <mutex>
#include <new>
#include <thread>
#include <utility>

namespace lodestar
{

namespace
{

// The feeds of most consoles are smaller.
constexpr std::size_t smallBody = 4UL * 1024 * 1024;
// One slice unpacks to a megabyte at most.
constexpr std::size_t sliceSize = 1024;
constexpr std::size_t anySize = std::numeric_limits<std::size_t>::max();

} // namespace

/// The thread that unpacks large bodies. Each body that is kept has the turn (see HeldBytes) until it has been read, so
/// there is one at a time.
class Delivery::LargeBodies
{
public:
    static LargeBodies& shared()
    {
        // Never destroyed: the thread still waits on the condition when the process ends.
        static LargeBodies* const bodies = new LargeBodies;
        return *bodies;
    }
    void add(std::unique_ptr<Delivery> delivery)
    {
        {
            const std::lock_guard lock(m_mutex);
            m_waiting.push_back(std::move(delivery));
        }
        m_added.notify_one();
    }

private:
    LargeBodies()
    {
        std::thread([this] { run(); }).detach();
    }
    void run()
    {
        const OwnThread thread("lodestar-unpack");
        OwnThread::takeLowPriority();
        for (;;) {
            std::unique_lock lock(m_mutex);
            m_added.wait(lock, [this] { return !m_waiting.empty(); });
            std::unique_ptr<Delivery> delivery = std::move(m_waiting.front());
            m_waiting.pop_front();
            lock.unlock();
            delivery->unpackLarge();
            complete(std::move(delivery));
        }
    }

    std::mutex m_mutex;
    std::condition_variable m_added;
    std::deque<std::unique_ptr<Delivery>> m_waiting;
};

void Delivery::start(OperationQueue queue, Completion completion, Result<URLLoad> load, HeldBytes held)
{
    held.setDelivering();
    std::unique_ptr<Delivery> delivery(
        new Delivery(std::move(queue), std::move(completion), std::move(load), std::move(held)));
    if (!delivery->m_load || !BodyUnpacker::isNeeded(delivery->m_load.value().response)) {
        complete(std::move(delivery));
        return;
    }
    const OperationQueue readers = delivery->m_queue;
    readers.addOperation([delivery = std::move(delivery)]() mutable { run(std::move(delivery)); });
}

void Delivery::run(std::unique_ptr<Delivery> delivery)
{
    URLLoad& load = delivery->m_load.value();
    delivery->m_unpacker = std::make_unique<BodyUnpacker>(load.response, HeldBytes::Claim::Small);
    delivery->m_packed = std::exchange(load.body, {});
    if (delivery->unpack(smallBody) == Progress::TooLarge) {
        LargeBodies::shared().add(std::move(delivery));
        return;
    }
    const auto completion = std::move(delivery->m_completion);
    completion(std::move(delivery->m_load));
}

void Delivery::complete(std::unique_ptr<Delivery> delivery)
{
    const OperationQueue readers = delivery->m_queue;
    readers.addOperation([delivery = std::move(delivery)] {
        const auto completion = std::move(delivery->m_completion);
        completion(std::move(delivery->m_load));
    });
}

Delivery::Progress Delivery::unpack(std::size_t most)
{
    std::string& body = m_load.value().body;
    for (std::size_t at = 0; at < m_packed.size(); at += sliceSize) {
        const auto slice = std::span<const char>(m_packed).subspan(at, std::min(sliceSize, m_packed.size() - at));
        const bool goesOn =
            m_unpacker->unpack(slice, [&body](std::span<const char> piece) { appendToBody(body, piece); });
        if (most != anySize && (body.size() > most || m_unpacker->foundNoRoom())) {
            return Progress::TooLarge;
        }
        if (!goesOn) {
            break;
        }
    }
    freeBody(m_packed);
    m_held.reset();
    if (auto error = m_unpacker->error()) {
        m_load = std::move(*error);
    }
    return Progress::Done;
}

/// Starts again from the first byte: what was unpacked so far is small. Measures the body before it keeps any of it:
/// otherwise hundreds of megabytes might be allocated for a hostile body and freed again, which would slow every other
/// thread.
void Delivery::unpackLarge()
{
    URLLoad& load = m_load.value();
    freeBody(load.body);
    m_unpacker = nullptr;
    const auto size = measure();
    if (!size) {
        return;
    }
    m_turn.take();
    m_unpacker = std::make_unique<BodyUnpacker>(load.response, HeldBytes::Claim::Turn, BodyUnpacker::WithoutRoom::Wait);
    try {
        load.body.reserve(*size);
    } catch (const std::bad_alloc&) {
        // Without the reservation the body grows as it comes, or fails then.
    }
    unpack(anySize);
}

std::optional<std::size_t> Delivery::measure()
{
    BodyUnpacker unpacker(m_load.value().response, std::nullopt);
    unpacker.unpack(m_packed, [](std::span<const char>) {});
    if (auto error = unpacker.error()) {
        freeBody(m_packed);
        m_held.reset();
        m_load = std::move(*error);
        return std::nullopt;
    }
    return unpacker.size();
}

Result<URLLoad> Delivery::unpacked(URLLoad load)
{
    if (!BodyUnpacker::isNeeded(load.response)) {
        return load;
    }
    BodyUnpacker unpacker(load.response, HeldBytes::Claim::Whole);
    const std::string packed = std::exchange(load.body, {});
    unpacker.unpack(packed, [&load](std::span<const char> piece) { appendToBody(load.body, piece); });
    if (auto error = unpacker.error()) {
        return std::move(*error);
    }
    return load;
}

} // namespace lodestar
