// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Queues/OperationQueue.h"
#include "Platform/URLLoading/BodyUnpacker.h"
#include "Platform/URLLoading/HeldBytes.h"
#include "Platform/URLLoading/URLConnection.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace lodestar
{

/// A plain request's answer on its way from the network to its completion. Packed bodies are unpacked on the reader's
/// queue; large ones, one after another, on a thread of their own with a low priority, so that neither their size nor
/// their number is felt by the others.
class Delivery
{
public:
    using Completion = std::function<void(Result<URLLoad>)>;

    /// Calls the completion on the queue, exactly once.
    static void start(OperationQueue queue, Completion completion, Result<URLLoad> load, HeldBytes held);

    /// The load with its body unpacked, for a reader that waits for it.
    static Result<URLLoad> unpacked(URLLoad load);

private:
    class LargeBodies;
    enum class Progress { Done, TooLarge };

    Delivery(OperationQueue queue, Completion completion, Result<URLLoad> load, HeldBytes held)
        : m_queue(std::move(queue)),
          m_completion(std::move(completion)),
          m_load(std::move(load)),
          m_held(std::move(held))
    {
    }

    static void run(std::unique_ptr<Delivery> delivery);
    static void complete(std::unique_ptr<Delivery> delivery);
    /// All of it, unless that is more than so many bytes or finds no room as a small one.
    Progress unpack(std::size_t most);
    void unpackLarge();
    /// How many bytes the body unpacks to. None when it is damaged or too large, and the load then says so.
    std::optional<std::size_t> measure();

    HeldBytes::Turn m_turn; ///< of a large one; first, since it is given back when nothing is held any more
    OperationQueue m_queue;
    Completion m_completion;
    Result<URLLoad> m_load;
    HeldBytes m_held;
    std::string m_packed;
    std::unique_ptr<BodyUnpacker> m_unpacker;
};

} // namespace lodestar
