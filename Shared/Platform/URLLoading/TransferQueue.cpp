// SPDX-License-Identifier: Apache-2.0
#include "Platform/URLLoading/TransferQueue.h"

#include "Platform/URLLoading/Transfer.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace lodestar
{

namespace
{

// How far ahead one whose turn it is not yet is passed over: keeps a long queue of silent servers from being walked
// through again and again.
constexpr std::ptrdiff_t sight = 256;

} // namespace

bool TransferQueue::erase(const std::shared_ptr<Transfer>& transfer)
{
    return std::erase(m_waiting, transfer) != 0;
}

std::shared_ptr<Transfer> TransferQueue::take(Busy servers)
{
    const auto end = m_waiting.begin() + std::min<std::ptrdiff_t>(sight, std::ssize(m_waiting));
    auto next = std::find_if(m_waiting.begin(), end, [this](const auto& transfer) { return !isBusy(*transfer); });
    if (next == end) {
        if (servers == Busy::Skip || m_waiting.empty()) {
            return nullptr;
        }
        next = m_waiting.begin();
    }
    std::shared_ptr<Transfer> taken = std::move(*next);
    m_waiting.erase(next);
    return taken;
}

void TransferQueue::didStart(const Transfer& transfer)
{
    ++m_running[transfer.server()];
}

void TransferQueue::didEnd(const Transfer& transfer)
{
    const auto entry = m_running.find(transfer.server());
    if (entry != m_running.end() && --entry->second == 0) {
        m_running.erase(entry);
    }
}

bool TransferQueue::isBusy(const Transfer& transfer) const
{
    return m_running.contains(transfer.server());
}

} // namespace lodestar
