// SPDX-License-Identifier: Apache-2.0
#include "Platform/URLLoading/ConnectionHandle.h"

namespace lodestar
{

namespace
{

int sendNothing(void*, char*, char*, int, int)
{
    return CURL_PREREQFUNC_ABORT;
}

} // namespace

ConnectionHandle ConnectionHandle::make(const std::string& url, Handshake handshake)
{
    // `Transfer` keeps the deadlines; libcurl's own limit for connecting must not come first.
    constexpr long secondsToConnect = 24L * 60 * 60;
    ConnectionHandle handle;
    handle.easy.reset(curl().easyInit());
    CURL* const easy = handle.easy.get();
    if (easy == nullptr) {
        return handle;
    }
    handle.handshake = std::make_unique<HandshakeBeginning>();
    if (handshake == Handshake::Held) {
        handle.hold = std::make_shared<HandshakeHold>();
        handle.handshake->hold = handle.hold.get();
        curl().easySetopt(easy, CURLOPT_FRESH_CONNECT, 1L);
        curl().easySetopt(easy, CURLOPT_PREREQFUNCTION, &sendNothing);
    }
    curl().easySetopt(easy, CURLOPT_URL, url.c_str());
    curl().easySetopt(easy, CURLOPT_PROTOCOLS_STR, "https");
    curl().easySetopt(easy, CURLOPT_DISALLOW_USERNAME_IN_URL, 1L);
    curl().easySetopt(easy, CURLOPT_PROXY, "");
    curl().easySetopt(easy, CURLOPT_NOSIGNAL, 1L);
    // Without this option, giving a transfer up would block the driving thread while its host name is still being
    // resolved.
    curl().easySetopt(easy, CURLOPT_QUICK_EXIT, 1L);
    curl().easySetopt(easy, CURLOPT_HTTP_VERSION, CURL_HTTP_VERSION_1_1);
    // Lodestar decides about trust itself, for every connection, before a request is sent. So libcurl may reuse a
    // connection for another kind of request than the one that opened it.
    curl().easySetopt(easy, CURLOPT_SSL_VERIFYPEER, 0L);
    curl().easySetopt(easy, CURLOPT_SSL_VERIFYHOST, 0L);
    curl().easySetopt(easy, CURLOPT_CAINFO, nullptr);
    curl().easySetopt(easy, CURLOPT_CAPATH, nullptr);
    // Each hop has its own handle, so cached TLS sessions would never be used.
    curl().easySetopt(easy, CURLOPT_SSL_SESSIONID_CACHE, 0L);
    curl().easySetopt(easy, CURLOPT_SSL_CTX_FUNCTION, curl().secureConnection);
    curl().easySetopt(easy, CURLOPT_SSL_CTX_DATA, handle.handshake.get());
    curl().easySetopt(easy, CURLOPT_CONNECTTIMEOUT, secondsToConnect);
    return handle;
}

} // namespace lodestar
