// SPDX-License-Identifier: Apache-2.0
#include "Feedback/ReportSender.h"

#include "Feedback/ReportArchive.h"
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

} // namespace

const std::string& feedbackAddress()
{
    static const std::string address = LODESTAR_FEEDBACK_URL;
    return address;
}

std::function<void()> sendReport(const ReportBundle& bundle, const std::string& address, const OperationQueue& queue,
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
    request.headers.setValue("Content-Type", "application/zip");
    request.body = zipArchive("lodestar-report-" + bundle.identifier, reportFiles(bundle));
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

} // namespace lodestar
