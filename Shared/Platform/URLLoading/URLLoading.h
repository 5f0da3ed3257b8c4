// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Queues/OperationQueue.h"
#include "Platform/Result.h"
#include "Platform/URLLoading/URLRequest.h"

#include <functional>
#include <memory>
#include <string>

namespace lodestar
{

/// Sends the request under the system's trust rules (see ServerTrust.h) and calls the completion exactly once, on the
/// queue. Returns at once. When the request's clocks start, see NetworkThread.h. A redirect is followed within TLS
/// only; a redirect that cannot be followed is the answer.
///
/// The returned function ends the transfer, from any thread: the completion then gets `Cancelled`, unless it was called
/// before.
std::function<void()> sendAsynchronousRequest(URLRequest request, const OperationQueue& queue,
                                              std::function<void(Result<URLLoad>)> completion);

/// Says that so many requests to the address's server will probably follow. While the caller keeps the returned object,
/// connections are made ready for them where the network is slow enough for that to pay. On such a connection only the
/// handshake's greeting is sent until a request takes it; the usual rules of trust then apply. Any thread.
std::shared_ptr<void> expectRequests(const std::string& url, int requests);

/// Like `sendAsynchronousRequest`, but blocks the calling thread, which runs the transfer itself on kept-alive
/// connections of its own.
Result<URLLoad> sendSynchronousRequest(const URLRequest& request);

} // namespace lodestar
