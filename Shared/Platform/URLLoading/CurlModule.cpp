// SPDX-License-Identifier: Apache-2.0
#include "Platform/URLLoading/CurlModule.h"

#include <openssl/bio.h>
#include <openssl/crypto.h>
#include <openssl/ssl.h>

#include <cstdlib>
#include <string_view>

namespace
{

bool prepare()
{
    // libcurl would write every connection's secrets to the file that this variable names.
    unsetenv("SSLKEYLOGFILE");
    // The network thread may be in the middle of a handshake when the process ends, so OpenSSL must not clean up before
    // that thread is joined.
    return OPENSSL_init_crypto(OPENSSL_INIT_NO_ATEXIT, nullptr) == 1 &&
           curl_global_init(CURL_GLOBAL_DEFAULT) == CURLE_OK;
}

bool hasCloseNotice(const ssl_st* connection)
{
    return (SSL_get_shutdown(connection) & SSL_RECEIVED_SHUTDOWN) != 0;
}

std::uint64_t wireBytes(ssl_st* connection)
{
    return BIO_number_read(SSL_get_rbio(connection));
}

std::string tlsVersion(const ssl_st* connection)
{
    constexpr std::string_view protocol = "TLSv";
    const std::string_view version = connection != nullptr ? SSL_get_version(connection) : "";
    return std::string(version.starts_with(protocol) ? version.substr(protocol.size()) : version);
}

} // namespace

const lodestar::CurlModule* lodestar_curl_module()
{
    using lodestar::HandshakeHold;
    using lodestar::ServerCertificate;
    static constexpr lodestar::CurlModule module{
        .easyCleanup = &curl_easy_cleanup,
        .easyGetinfo = &curl_easy_getinfo,
        .easyInit = &curl_easy_init,
        .easyPause = &curl_easy_pause,
        .easySetopt = &curl_easy_setopt,
        .easyStrerror = &curl_easy_strerror,
        .free = &curl_free,
        .multiAddHandle = &curl_multi_add_handle,
        .multiCleanup = &curl_multi_cleanup,
        .multiInfoRead = &curl_multi_info_read,
        .multiInit = &curl_multi_init,
        .multiPerform = &curl_multi_perform,
        .multiPoll = &curl_multi_poll,
        .multiRemoveHandle = &curl_multi_remove_handle,
        .multiSetopt = &curl_multi_setopt,
        .multiWakeup = &curl_multi_wakeup,
        .slistAppend = &curl_slist_append,
        .slistFreeAll = &curl_slist_free_all,
        .url = &curl_url,
        .urlCleanup = &curl_url_cleanup,
        .urlGet = &curl_url_get,
        .urlSet = &curl_url_set,
        .prepare = &prepare,
        .certificateOfConnection = &ServerCertificate::ofConnection,
        .hasCloseNotice = &hasCloseNotice,
        .wireBytesOfConnection = &wireBytes,
        .tlsVersionOfConnection = &tlsVersion,
        .secureConnection = &HandshakeHold::secureConnection,
    };
    return &module;
}
