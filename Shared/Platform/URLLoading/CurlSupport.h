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

/// Prepares the process for many transfers, once: raises the descriptor limit to the system's maximum, makes threads
/// share memory, and ignores the signal for a write to a closed socket.
void prepareProcessForTransfers();

/// The server that an address names. Lower case, the port always filled in; an IPv6 address without its brackets.
struct Origin {
    std::string scheme;
    std::string host;
    int port = 0;

    static std::optional<Origin> ofURL(const std::string& url);
    friend bool operator==(const Origin&, const Origin&) = default;
};

/// Resolves a reference found at `base`; the result has no fragment. None when the reference makes no sense.
std::optional<std::string> resolvedURL(const std::string& base, const std::string& reference);

/// The path and the query of the address, as a request names them. "/" for a text that is no address.
std::string requestTarget(const std::string& url);

/// The request's header fields in libcurl's form. Fields that libcurl would add by itself are taken out.
CurlList curlHeaders(const URLRequest& request);

} // namespace lodestar
