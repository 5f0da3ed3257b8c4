// SPDX-License-Identifier: Apache-2.0
#include "Platform/URLLoading/SynchronousLoader.h"

#include "Platform/URLLoading/Delivery.h"
#include "Platform/URLLoading/LoadClient.h"
#include "Platform/URLLoading/Transfer.h"
#include "Platform/URLLoading/URLError.h"

#include <algorithm>
#include <mutex>
#include <vector>

namespace lodestar
{

namespace
{

constexpr std::size_t idleLoaders = 8;
constexpr long connectionsOfLoader = 4;

struct Pool {
    std::mutex mutex;
    std::vector<std::unique_ptr<SynchronousLoader>> idle; ///< the last used one is last
};

Pool& pool()
{
    // Never destroyed: threads may still load while the process ends.
    static Pool* const shared = new Pool;
    return *shared;
}

} // namespace

SynchronousLoader::SynchronousLoader() : m_multi(curl().multiInit())
{
    curl().multiSetopt(m_multi, CURLMOPT_MAXCONNECTS, connectionsOfLoader);
}

SynchronousLoader::~SynchronousLoader()
{
    curl().multiCleanup(m_multi);
}

Result<URLLoad> SynchronousLoader::load(const URLRequest& request)
{
    prepareProcessForTransfers();
    std::optional<Result<URLLoad>> answer;
    auto client =
        std::make_shared<LoadClient>([&answer](Result<URLLoad> load, HeldBytes) { answer = std::move(load); });
    Transfer transfer(request, std::move(client));
    auto loader = borrow(Origin::ofURL(request.url));
    loader->drive(transfer);
    giveBack(std::move(loader));
    return *answer ? Delivery::unpacked(std::move(answer->value())) : std::move(*answer);
}

std::unique_ptr<SynchronousLoader> SynchronousLoader::borrow(const std::optional<Origin>& origin)
{
    std::unique_ptr<SynchronousLoader> loader;
    {
        const std::lock_guard lock(pool().mutex);
        auto& idle = pool().idle;
        const auto match = std::find_if(idle.rbegin(), idle.rend(),
                                        [&origin](const auto& one) { return one->m_lastOrigin == origin; });
        if (match != idle.rend()) {
            loader = std::move(*match);
            idle.erase(std::next(match).base());
        } else if (idle.size() == idleLoaders) {
            loader = std::move(idle.front());
            idle.erase(idle.begin());
        }
    }
    if (loader == nullptr) {
        loader = std::make_unique<SynchronousLoader>();
    }
    loader->m_lastOrigin = origin;
    return loader;
}

void SynchronousLoader::giveBack(std::unique_ptr<SynchronousLoader> loader)
{
    const std::lock_guard lock(pool().mutex);
    if (pool().idle.size() < idleLoaders) {
        pool().idle.push_back(std::move(loader));
    }
}

void SynchronousLoader::drive(Transfer& transfer)
{
    bool again = transfer.start();
    while (again) {
        curl().multiAddHandle(m_multi, transfer.handle());
        std::optional<CURLcode> result;
        bool overdue = false;
        while (!result && !overdue) {
            result = turn(transfer);
            overdue = !result && Transfer::Clock::now() >= transfer.deadline();
        }
        curl().multiRemoveHandle(m_multi, transfer.handle());
        if (overdue) {
            transfer.fail(URLErrorCode::TimedOut);
        }
        again = !overdue && transfer.hopEnded(*result);
    }
}

/// Lets libcurl work as far as it can without waiting; then, unless the transfer is done, waits for the socket or the
/// deadline.
std::optional<CURLcode> SynchronousLoader::turn(const Transfer& transfer)
{
    int running = 0;
    curl().multiPerform(m_multi, &running);
    int left = 0;
    while (const CURLMsg* const message = curl().multiInfoRead(m_multi, &left)) {
        if (message->msg == CURLMSG_DONE) {
            return message->data.result;
        }
    }
    const auto wait = std::chrono::ceil<std::chrono::milliseconds>(transfer.deadline() - Transfer::Clock::now());
    curl().multiPoll(m_multi, nullptr, 0, static_cast<int>(std::clamp<std::int64_t>(wait.count(), 0, 60'000)), nullptr);
    return std::nullopt;
}

} // namespace lodestar
