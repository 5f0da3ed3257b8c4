// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/URLLoading/CurlModule.h"
#include "Platform/URLLoading/URLRequest.h"

#include <memory>
#include <optional>
#include <string>

namespace lodestar
{

struct CurlEasyDeleter {
    void operator()(CURL* handle) const { curl().easyCleanup(handle); }
};
struct CurlListDeleter {
    void operator()(curl_slist* list) const { curl().slistFreeAll(list); }
};
using CurlEasy = std::unique_ptr<CURL, CurlEasyDeleter>;
using CurlList = std::unique_ptr<curl_slist, CurlListDeleter>;

/// Makes the process ready for many transfers, once: as many descriptors as the system allows, memory that threads
/// share, and no signal for a write to a closed socket.
void prepareProcessForTransfers();

/// Which server an address names. Lower case, the port always filled in; an IPv6 address without its brackets.
struct Origin {
    std::string scheme;
    std::string host;
    int port = 0;

    static std::optional<Origin> ofURL(const std::string& url);
    friend bool operator==(const Origin&, const Origin&) = default;
};

/// The address that a reference found at `base` means, without its fragment; none when there is no sense in it.
std::optional<std::string> resolvedURL(const std::string& base, const std::string& reference);

/// What a request for the address asks its server for: the path and the query. "/" for what is no address.
std::string requestTarget(const std::string& url);

/// The request's fields as libcurl wants them, with the fields that libcurl would add of its own taken out.
CurlList curlHeaders(const URLRequest& request);

} // namespace lodestar
