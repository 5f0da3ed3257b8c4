// SPDX-License-Identifier: Apache-2.0
#include "Platform/URLLoading/URLError.h"

#include "Platform/URLLoading/ErrorWords.h"

#include <curl/curl.h>

namespace lodestar
{

Error urlError(URLErrorCode code, std::string reason)
{
    return {std::string(urlErrorDomain), static_cast<int>(code), wordsFor(code), std::move(reason), nullptr};
}

URLErrorCode urlErrorCodeOfTransfer(int curlCode)
{
    switch (curlCode) {
    case CURLE_URL_MALFORMAT:
    case CURLE_UNSUPPORTED_PROTOCOL:
    case CURLE_LOGIN_DENIED: // libcurl's result for a user name in the address, which requests must not have
        return URLErrorCode::BadURL;
    case CURLE_COULDNT_RESOLVE_HOST:
    case CURLE_COULDNT_RESOLVE_PROXY:
        return URLErrorCode::CannotFindHost;
    case CURLE_COULDNT_CONNECT:
    case CURLE_INTERFACE_FAILED:
        return URLErrorCode::CannotConnectToHost;
    case CURLE_OPERATION_TIMEDOUT:
        return URLErrorCode::TimedOut;
    case CURLE_GOT_NOTHING:
    case CURLE_PARTIAL_FILE:
    case CURLE_RECV_ERROR:
    case CURLE_SEND_ERROR:
        return URLErrorCode::NetworkConnectionLost;
    case CURLE_SSL_CONNECT_ERROR:
    case CURLE_SSL_CIPHER:
    case CURLE_SSL_ENGINE_INITFAILED:
    case CURLE_SSL_CERTPROBLEM:
    case CURLE_USE_SSL_FAILED:
        return URLErrorCode::SecureConnectionFailed;
    case CURLE_PEER_FAILED_VERIFICATION:
        return URLErrorCode::ServerCertificateUntrusted;
    case CURLE_TOO_MANY_REDIRECTS:
        return URLErrorCode::TooManyRedirects;
    case CURLE_WEIRD_SERVER_REPLY:
    case CURLE_BAD_CONTENT_ENCODING:
    case CURLE_HTTP2:
        return URLErrorCode::BadServerResponse;
    default:
        return URLErrorCode::Unknown;
    }
}

} // namespace lodestar
