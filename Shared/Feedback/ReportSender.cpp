// SPDX-License-Identifier: Apache-2.0
#include "Feedback/ReportSender.h"

#include "Feedback/ReportArchive.h"
#include "Platform/URLLoading/URLLoading.h"

#include <fmt/core.h>

#include <algorithm>
#include <random>
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

/// Reports the progress at most once for each percent: a large body is sent in thousands of pieces.
std::function<void(std::size_t)> percentOf(std::size_t whole, std::function<void(int)> progress)
{
    return [whole, progress = std::move(progress), told = 0](std::size_t sent) mutable {
        const int percent = static_cast<int>(std::min(sent, whole) * 100 / whole);
        if (percent > told) {
            told = percent;
            progress(percent);
        }
    };
}

/// Sends the body over TLS; fails for any other address.
std::function<void()> post(const std::string& address, const char* type, std::string body, const OperationQueue& queue,
                           std::function<void(Result<void>)> completion, std::function<void(int)> progress = {})
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
    request.headers.setValue("X-Feedback-Session", feedbackSessionIdentifier());
    request.body = std::move(body);
    if (progress) {
        request.bodySent = percentOf(request.body.size(), std::move(progress));
    }
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

std::string& address()
{
    static std::string address = LODESTAR_FEEDBACK_URL;
    return address;
}

/// Quotes the text as a JSON string.
std::string quoted(std::string_view text)
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
    return address();
}

void setFeedbackAddress(std::string address_)
{
    address() = std::move(address_);
}

const std::string& feedbackSessionIdentifier()
{
    // A random number, not the time: it identifies the run and tells nothing about the device.
    static const std::string identifier = [] {
        std::random_device chance;
        return fmt::format("{:08x}{:08x}", chance(), chance());
    }();
    return identifier;
}

void startFeedbackSession(std::string_view applicationKey, int mode, const std::string& address,
                          const OperationQueue& queue, std::function<void(Result<void>)> completion)
{
    const std::string below = address.ends_with('/') ? "sessions" : "/sessions";
    post(address + below, "application/json",
         fmt::format(R"({{"key":{},"session":{},"mode":{}}})", quoted(applicationKey),
                     quoted(feedbackSessionIdentifier()), mode),
         queue, std::move(completion));
}

std::function<void()> sendReport(const ReportBundle& bundle, const std::string& address, const OperationQueue& queue,
                                 std::function<void(Result<void>)> completion,
                                 std::function<void(int percent)> progress)
{
    return post(address, "application/zip", zipArchive("lodestar-report-" + bundle.identifier, reportFiles(bundle)),
                queue, std::move(completion), std::move(progress));
}

} // namespace lodestar
