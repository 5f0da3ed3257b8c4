// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Queues/OperationQueue.h"
#include "Platform/Result.h"
#include "Platform/URLLoading/BodyUnpacker.h"
#include "Platform/URLLoading/HeldBytes.h"
#include "Platform/URLLoading/URLRequest.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace lodestar
{

/// A plain request's answer on its way from the network to its completion. Packed bodies are unpacked on the reader's
/// queue. Large ones are unpacked one after another on a low-priority thread of their own, so that neither their size
/// nor their number slows other work.
class Delivery
{
public:
    using Completion = std::function<void(Result<URLLoad>)>;

    /// Calls the completion on the queue, exactly once.
    static void start(OperationQueue queue, Completion completion, Result<URLLoad> load, HeldBytes held);

    /// The load with its body unpacked, for a caller that blocks until it has the body.
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
    /// Unpacks the whole body; stops when it exceeds `most` bytes or finds no room as a small body.
    Progress unpack(std::size_t most);
    void unpackLarge();
    /// The number of bytes that the body unpacks to. None when the body is damaged or too large; `m_load` then holds
    /// the error.
    std::optional<std::size_t> measure();

    HeldBytes::Turn m_turn; ///< a large body's turn; declared first, so that it is given back after everything held
    OperationQueue m_queue;
    Completion m_completion;
    Result<URLLoad> m_load;
    HeldBytes m_held;
    std::string m_packed;
    std::unique_ptr<BodyUnpacker> m_unpacker;
};

} // namespace lodestar
