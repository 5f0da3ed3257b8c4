// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Feedback/ReportBundle.h"
#include "Platform/Queues/OperationQueue.h"
#include "Platform/Result.h"

#include <functional>
#include <string>

namespace lodestar
{

/// Where reports are sent, "https://…"; empty, as by default, when they are sent nowhere. The build says it, unless the
/// run was told another: on the main thread, before anything else asks.
const std::string& feedbackAddress();
void setFeedbackAddress(std::string address);

/// A run of the program as the feedback service knows it.
struct FeedbackSession {
    std::string applicationKey; ///< a credential: it stands in no log and in no report
    std::string identifier;     ///< letters and digits
    int mode = 0;               ///< of the feedback, as the service numbers them
};

/// Announces the run to the service, at "sessions" below the address, as JSON: {"key": …, "session": …, "mode": …}.
/// The key goes in the body, which no redirect takes to another server. Otherwise as `sendReport`.
void startFeedbackSession(const FeedbackSession& session, const std::string& address, const OperationQueue& queue,
                          std::function<void(Result<void>)> completion);

/// Sends the report as one ZIP archive. To be called only when a person who was shown `sentText` of the same bundle has
/// said so. Only over HTTPS, to a server that the system's authorities vouch for. The completion runs once, on the
/// queue, with success when the server answered with a status of 2xx. A header names the session it is sent in, which
/// may be a later one than the report tells about.
///
/// `progress` is told how much of it has gone, in percent, each time that has grown, on the network thread; it must not
/// block. All may have gone long before the server answers.
///
/// The returned function cancels, from any thread, and does nothing once it has ended; the completion still runs.
std::function<void()> sendReport(const ReportBundle& bundle, const std::string& address, const OperationQueue& queue,
                                 std::function<void(Result<void>)> completion,
                                 std::function<void(int percent)> progress = {});

} // namespace lodestar
