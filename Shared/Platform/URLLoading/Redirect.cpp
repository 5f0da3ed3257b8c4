// SPDX-License-Identifier: Apache-2.0
#include "Platform/URLLoading/Redirect.h"

#include "Platform/URLLoading/CurlSupport.h"

namespace lodestar
{

namespace
{

bool isRedirect(int status)
{
    return status == 301 || status == 302 || status == 303 || status == 307 || status == 308;
}

bool keepsMethod(int status)
{
    return status == 307 || status == 308;
}

bool namesUser(const std::string& url)
{
    const std::size_t start = url.find("//");
    const std::size_t end = url.find_first_of("/?#", start == std::string::npos ? 0 : start + 2);
    return url.substr(0, end).find('@') != std::string::npos;
}

} // namespace

std::optional<URLRequest> requestAfterResponse(const URLRequest& sent, const URLResponse& response)
{
    const auto location = response.headers.value("Location");
    if (!isRedirect(response.statusCode) || !location || location->empty()) {
        return std::nullopt;
    }
    const auto target = resolvedURL(sent.url, *location);
    const auto from = Origin::ofURL(sent.url);
    const auto to = target ? Origin::ofURL(*target) : std::nullopt;
    if (!from || !to || to->scheme != "https" || namesUser(*target)) {
        return std::nullopt;
    }
    const bool leavesOrigin = !(*from == *to);
    if (leavesOrigin && !sent.body.empty()) {
        return std::nullopt;
    }
    URLRequest next = sent;
    next.url = *target;
    if (!keepsMethod(response.statusCode) && next.method != "GET" && next.method != "HEAD") {
        next.method = "GET";
        next.body.clear();
        next.headers.removeValue("Content-Type");
        next.headers.removeValue("Content-Length");
    }
    if (leavesOrigin) {
        next.headers.removeValue("X-API-Session");
    }
    return next;
}

} // namespace lodestar
