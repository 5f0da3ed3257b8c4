// SPDX-License-Identifier: Apache-2.0
#include "Platform/URLLoading/URLError.h"

#include <curl/curl.h>

namespace lodestar
{

namespace
{

const char* sentence(URLErrorCode code)
{
    switch (code) {
    case URLErrorCode::Cancelled:
        return "The request was cancelled.";
    case URLErrorCode::BadURL:
        return "The address is not valid.";
    case URLErrorCode::TimedOut:
        return "The request timed out.";
    case URLErrorCode::CannotFindHost:
        return "The server could not be found.";
    case URLErrorCode::CannotConnectToHost:
        return "Could not connect to the server.";
    case URLErrorCode::NetworkConnectionLost:
        return "The connection to the server was lost.";
    case URLErrorCode::TooManyRedirects:
        return "The server redirected too often.";
    case URLErrorCode::BadServerResponse:
        return "The server gave an answer that could not be understood.";
    case URLErrorCode::DataLengthExceedsMaximum:
        return "The server's answer was too large.";
    case URLErrorCode::SecureConnectionFailed:
        return "A secure connection to the server could not be made.";
    case URLErrorCode::ServerCertificateUntrusted:
        return "The server's certificate is not trusted.";
    case URLErrorCode::Unknown:
        break;
    }
    return "The request failed.";
}

} // namespace

Error urlError(URLErrorCode code, std::string reason)
{
    return {std::string(urlErrorDomain), static_cast<int>(code), sentence(code), std::move(reason), nullptr};
}

URLErrorCode urlErrorCodeOfTransfer(int curlCode)
{
    switch (curlCode) {
    case CURLE_URL_MALFORMAT:
    case CURLE_UNSUPPORTED_PROTOCOL:
    case CURLE_LOGIN_DENIED: // a user name in the address, which requests may not carry
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
