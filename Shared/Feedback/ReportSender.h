// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Feedback/ReportBundle.h"
#include "Platform/Queues/OperationQueue.h"
#include "Platform/Result.h"

#include <functional>
#include <string>

namespace lodestar
{

/// Where this build sends reports, "https://…"; empty, as by default, when it sends none.
const std::string& feedbackAddress();

/// Sends the report as one ZIP archive. To be called only when a person who was shown `sentText` of the same bundle has
/// said so. Only over HTTPS, to a server that the system's authorities vouch for. The completion runs once, on the
/// queue, with success when the server answered with a status of 2xx.
///
/// The returned function cancels, from any thread, and does nothing once it has ended; the completion still runs.
std::function<void()> sendReport(const ReportBundle& bundle, const std::string& address, const OperationQueue& queue,
                                 std::function<void(Result<void>)> completion);

} // namespace lodestar
