// SPDX-License-Identifier: Apache-2.0
#include "Feedback/ReportSender.h"

#include "Feedback/ReportArchive.h"
#include "Feedback/VireoLogger.h"
#include "Platform/URLLoading/URLConnection.h"

#include <fmt/core.h>

#include <utility>

namespace lodestar
{

namespace
{

constexpr int badAddress = 1;
constexpr int refused = 2;

Error senderError(int code, std::string text)
{
    return {std::string(reportErrorDomain), code, std::move(text), {}, nullptr};
}

/// Sends the body over TLS or not at all.
std::function<void()> post(const std::string& address, const char* type, std::string body, const OperationQueue& queue,
                           std::function<void(Result<void>)> completion)
{
    if (!address.starts_with("https://")) {
        queue.addOperation([completion = std::move(completion)] {
            completion(senderError(badAddress, "There is no safe address to send reports to."));
        });
        return [] {};
    }
    URLRequest request;
    request.url = address;
    request.method = "POST";
    request.headers.setValue("Content-Type", type);
    request.headers.setValue("X-Feedback-Session", VireoLogger::sessionIdentifier());
    request.body = std::move(body);
    return sendAsynchronousRequest(
        std::move(request), queue, [completion = std::move(completion)](Result<URLLoad> load) {
            if (!load) {
                completion(load.error());
            } else if (const int status = load.value().response.statusCode; status < 200 || status > 299) {
                completion(senderError(refused, fmt::format("The server answered with status {}.", status)));
            } else {
                completion({});
            }
        });
}

/// As a JSON string.
std::string quoted(const std::string& text)
{
    std::string result = "\"";
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        result += byte < 0x20 || c == '"' || c == '\\' ? fmt::format("\\u{:04x}", byte) : std::string(1, c);
    }
    return result + "\"";
}

} // namespace

const std::string& feedbackAddress()
{
    static const std::string address = LODESTAR_FEEDBACK_URL;
    return address;
}

void startFeedbackSession(const FeedbackSession& session, const std::string& address, const OperationQueue& queue,
                          std::function<void(Result<void>)> completion)
{
    const std::string below = address.ends_with('/') ? "sessions" : "/sessions";
    post(address + below, "application/json",
         fmt::format(R"({{"key":{},"session":{},"mode":{}}})", quoted(session.applicationKey),
                     quoted(session.identifier), session.mode),
         queue, std::move(completion));
}

std::function<void()> sendReport(const ReportBundle& bundle, const std::string& address, const OperationQueue& queue,
                                 std::function<void(Result<void>)> completion)
{
    return post(address, "application/zip", zipArchive("lodestar-report-" + bundle.identifier, reportFiles(bundle)),
                queue, std::move(completion));
}

} // namespace lodestar
