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
    // Deadlines are kept elsewhere; libcurl's own for connecting must not come first.
    constexpr long secondsToConnect = 24L * 60 * 60;
    ConnectionHandle handle;
    handle.easy.reset(curl().easyInit());
    CURL* const easy = handle.easy.get();
    if (easy == nullptr) {
        return handle;
    }
    if (handshake == Handshake::Held) {
        handle.hold = std::make_shared<HandshakeHold>();
        curl().easySetopt(easy, CURLOPT_FRESH_CONNECT, 1L);
        curl().easySetopt(easy, CURLOPT_PREREQFUNCTION, &sendNothing);
    }
    curl().easySetopt(easy, CURLOPT_URL, url.c_str());
    curl().easySetopt(easy, CURLOPT_PROTOCOLS_STR, "https");
    curl().easySetopt(easy, CURLOPT_DISALLOW_USERNAME_IN_URL, 1L);
    curl().easySetopt(easy, CURLOPT_PROXY, "");
    curl().easySetopt(easy, CURLOPT_NOSIGNAL, 1L);
    // Without it a name that the resolver ponders would hold the driving thread when its transfer is given up.
    curl().easySetopt(easy, CURLOPT_QUICK_EXIT, 1L);
    curl().easySetopt(easy, CURLOPT_HTTP_VERSION, CURL_HTTP_VERSION_1_1);
    // Trust is ours to decide, before a request is sent, for every connection alike: so libcurl may lend a connection
    // that one kind of request opened to the other kind.
    curl().easySetopt(easy, CURLOPT_SSL_VERIFYPEER, 0L);
    curl().easySetopt(easy, CURLOPT_SSL_VERIFYHOST, 0L);
    curl().easySetopt(easy, CURLOPT_CAINFO, nullptr);
    curl().easySetopt(easy, CURLOPT_CAPATH, nullptr);
    // Each hop has a handle of its own, so that kept sessions would never be used.
    curl().easySetopt(easy, CURLOPT_SSL_SESSIONID_CACHE, 0L);
    curl().easySetopt(easy, CURLOPT_SSL_CTX_FUNCTION, curl().secureConnection);
    curl().easySetopt(easy, CURLOPT_SSL_CTX_DATA, handle.hold.get());
    curl().easySetopt(easy, CURLOPT_CONNECTTIMEOUT, secondsToConnect);
    return handle;
}

} // namespace lodestar
