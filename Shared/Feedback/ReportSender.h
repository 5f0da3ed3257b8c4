// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Feedback/ReportBundle.h"
#include "Platform/Queues/OperationQueue.h"
#include "Platform/Result.h"

#include <functional>
#include <string>
#include <string_view>

namespace lodestar
{

/// The address to which reports are sent, "https://…"; empty, the default, when they are sent nowhere. The build sets
/// the address. `setFeedbackAddress` replaces it for this run: main thread, before anything else reads the address.
const std::string& feedbackAddress();
void setFeedbackAddress(std::string address);

/// Names this run of the program in the log, in reports and to the feedback service: letters and digits. Any thread.
const std::string& feedbackSessionIdentifier();

/// Announces the run to the service, at "sessions" below the address, as JSON: {"key": …, "session": …, "mode": …}. The
/// application's key is a credential: never put it into a log or a report. The key goes in the body, because no
/// redirect takes a body to another server. The mode is one of the service's numbers. Everything else is as for
/// `sendReport`.
void startFeedbackSession(std::string_view applicationKey, int mode, const std::string& address,
                          const OperationQueue& queue, std::function<void(Result<void>)> completion);

/// Sends the report as one ZIP archive. Call it only after a person has read `sentText` of the same bundle and agreed.
/// Sends only over HTTPS, to a server that the system's authorities accept. The completion runs once, on the queue; it
/// reports success when the server answered with a 2xx status. A header names the session in which the report is sent,
/// which may be later than the one it is about.
///
/// `progress` receives the percentage sent so far, each time it has grown, on the network thread; it must not block.
/// The last byte may be sent long before the server answers.
///
/// The returned function cancels, from any thread; after the end it does nothing. The completion runs even after a
/// cancel.
std::function<void()> sendReport(const ReportBundle& bundle, const std::string& address, const OperationQueue& queue,
                                 std::function<void(Result<void>)> completion,
                                 std::function<void(int percent)> progress = {});

} // namespace lodestar
