// SPDX-License-Identifier: Apache-2.0
#include "Platform/URLLoading/URLLoading.h"

#include "Platform/URLLoading/Delivery.h"
#include "Platform/URLLoading/LoadClient.h"
#include "Platform/URLLoading/NetworkThread.h"
#include "Platform/URLLoading/SynchronousLoader.h"

namespace lodestar
{

std::function<void()> sendAsynchronousRequest(URLRequest request, const OperationQueue& queue,
                                              std::function<void(Result<URLLoad>)> completion)
{
    auto client = std::make_shared<LoadClient>(
        [queue, completion = std::move(completion)](Result<URLLoad> load, HeldBytes held) mutable {
            Delivery::start(queue, std::move(completion), std::move(load), std::move(held));
        });
    const auto transfer = std::make_shared<Transfer>(std::move(request), std::move(client));
    NetworkThread::shared().start(transfer);
    return [ended = std::weak_ptr<Transfer>(transfer)] {
        if (auto running = ended.lock()) {
            NetworkThread::shared().cancel(std::move(running));
        }
    };
}

std::shared_ptr<void> expectRequests(const std::string& url, int requests)
{
    NetworkThread::shared().expect(url, requests);
    return {nullptr, [url, requests](void*) { NetworkThread::shared().expect(url, -requests); }};
}

Result<URLLoad> sendSynchronousRequest(const URLRequest& request)
{
    return SynchronousLoader::load(request);
}

} // namespace lodestar
