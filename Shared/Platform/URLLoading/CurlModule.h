// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/URLLoading/HandshakeHold.h"
#include "Platform/URLLoading/ServerCertificate.h"

#include <curl/curl.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace lodestar
{

/// The functions of libcurl and OpenSSL that transfers call. Only this table knows them by name. On Linux the table
/// comes from our own module, lodestar-transfers.so, which the first transfer loads. If the program were linked with
/// both libraries, they would bring twenty-odd others, and looking up all their names before the program's first line
/// would take an eighth of the start.
struct CurlModule {
    decltype(&curl_easy_cleanup) easyCleanup;
    decltype(&curl_easy_getinfo) easyGetinfo;
    decltype(&curl_easy_init) easyInit;
    decltype(&curl_easy_pause) easyPause;
    decltype(&curl_easy_setopt) easySetopt;
    decltype(&curl_easy_strerror) easyStrerror;
    decltype(&curl_free) free;
    decltype(&curl_multi_add_handle) multiAddHandle;
    decltype(&curl_multi_cleanup) multiCleanup;
    decltype(&curl_multi_info_read) multiInfoRead;
    decltype(&curl_multi_init) multiInit;
    decltype(&curl_multi_perform) multiPerform;
    decltype(&curl_multi_poll) multiPoll;
    decltype(&curl_multi_remove_handle) multiRemoveHandle;
    decltype(&curl_multi_setopt) multiSetopt;
    decltype(&curl_multi_wakeup) multiWakeup;
    decltype(&curl_slist_append) slistAppend;
    decltype(&curl_slist_free_all) slistFreeAll;
    decltype(&curl_url) url;
    decltype(&curl_url_cleanup) urlCleanup;
    decltype(&curl_url_get) urlGet;
    decltype(&curl_url_set) urlSet;

    /// Sets up the state that both libraries keep for the whole process. Call it once, before any other function.
    bool (*prepare)();
    decltype(&ServerCertificate::ofConnection) certificateOfConnection;
    /// Whether the other end of a TLS connection has sent its close notice.
    bool (*hasCloseNotice)(const ssl_st* connection);
    /// Bytes that a TLS connection has received since it was opened, TLS's own bytes included.
    std::uint64_t (*wireBytesOfConnection)(ssl_st* connection);
    /// TLS's version on a connection: "1.3".
    std::string (*tlsVersionOfConnection)(const ssl_st* connection);
    decltype(&HandshakeHold::secureConnection) secureConnection;
};

/// The table, ready for use. Any thread. The first call loads it, which takes milliseconds and ends the process when
/// the installation lacks the module or the libraries.
const CurlModule& curl();

} // namespace lodestar

/// The module's one exported function.
extern "C" const lodestar::CurlModule* lodestar_curl_module();
