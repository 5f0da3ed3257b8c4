// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <deque>
#include <memory>
#include <string>
#include <unordered_map>

namespace lodestar
{

class Transfer;

/// Transfers that wait for their turn: in the order in which they came, but that a server of which one runs already
/// lets the others go first. So a fleet's transfers share a connection a server, with its handshake, instead of opening
/// one each. Not thread-safe.
class TransferQueue
{
public:
    bool empty() const { return m_waiting.empty(); }
    void push(std::shared_ptr<Transfer> transfer) { m_waiting.push_back(std::move(transfer)); }
    /// False when it does not wait.
    bool erase(const std::shared_ptr<Transfer>& transfer);

    enum class Busy { Skip, Take };
    /// Takes the next one out; null when only those of busy servers are in sight and they are to be skipped.
    std::shared_ptr<Transfer> take(Busy servers);

    /// Every transfer that runs is to be told, and told of again when it has ended.
    void didStart(const Transfer& transfer);
    void didEnd(const Transfer& transfer);

private:
    bool isBusy(const Transfer& transfer) const;

    std::deque<std::shared_ptr<Transfer>> m_waiting;
    std::unordered_map<std::string, std::size_t> m_running; ///< by server
};

} // namespace lodestar
