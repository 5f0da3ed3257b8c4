// SPDX-License-Identifier: Apache-2.0
#include "Controllers/REST/ExecutionContext.h"

#include "Platform/Queues/MainQueue.h"

#include <string>

namespace lodestar
{

namespace
{

template <typename... Fs>
struct Overloaded : Fs... {
    using Fs::operator()...;
};
template <typename... Fs>
Overloaded(Fs...) -> Overloaded<Fs...>;

} // namespace

const DispatchQueue& ExecutionContext::defaultConcurrentQueue()
{
    // Never destroyed: promises are settled until the very end of the process.
    static const auto* const queue =
        new DispatchQueue(std::string(defaultConcurrentQueueLabel), DispatchQueue::Kind::Concurrent);
    return *queue;
}

void ExecutionContext::dispatchBlock(Task block) const
{
    std::visit(
        Overloaded{[&](Default) { defaultConcurrentQueue().async(std::move(block)); },
                   [&](Main) { MainQueue::shared().async(std::move(block)); },
                   [&](const DispatchQueue& queue) { queue.async(std::move(block)); },
                   [&](const OperationQueue& queue) { queue.addOperation(std::move(block)); },
                   [&](const std::shared_ptr<ThreadContext>& thread) { thread->dispatchBlock(std::move(block)); }},
        m_target);
}

} // namespace lodestar
