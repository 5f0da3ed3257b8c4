// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/URLLoading/CloseNotice.h"
#include "Platform/URLLoading/HandshakeHold.h"
#include "Platform/URLLoading/ServerCertificate.h"

#include <curl/curl.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace lodestar
{

/// What transfers call of libcurl and OpenSSL, both of which only this table knows by their names. On Linux it comes
/// out of a module of ours, lodestar-transfers.so, which the first transfer loads: linked with the program, the two
/// bring twenty-odd other libraries, whose names all would be looked up before the program's first line, an eighth of a
/// start.
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

    /// The state that both libraries keep for the whole process. Once, before any other call.
    bool (*prepare)();
    decltype(&ServerCertificate::ofConnection) certificateOfConnection;
    decltype(&CloseNotice::ofConnection) noticeOfConnection;
    /// Bytes that a secured connection has received since it was opened, the protocol's own included.
    std::uint64_t (*wireBytesOfConnection)(ssl_st* connection);
    decltype(&HandshakeHold::secureConnection) secureConnection;
};

/// The table, ready for use. Any thread; the first call loads it, which takes milliseconds and ends the process when an
/// installation lacks the module or the libraries.
const CurlModule& curl();

} // namespace lodestar

/// The module's one function.
extern "C" const lodestar::CurlModule* lodestar_curl_module();
