// SPDX-License-Identifier: Apache-2.0
#include "Platform/URLLoading/URLError.h"

#include <curl/curl.h>

#include <algorithm>
#include <array>

/// Marks a sentence for the translators' tool, which looks for this name.
#define QT_TRANSLATE_NOOP(context, text) text

namespace lodestar
{

namespace
{

struct Words {
    URLErrorCode code;
    const char* sentence;
};

constexpr std::array<Words, 10> words = {{
    {URLErrorCode::Cancelled, QT_TRANSLATE_NOOP("ErrorWords", "The request was cancelled.")},
    {URLErrorCode::BadURL, QT_TRANSLATE_NOOP("ErrorWords", "The address is not valid.")},
    {URLErrorCode::TimedOut, QT_TRANSLATE_NOOP("ErrorWords", "No answer came in time. Check the network.")},
    {URLErrorCode::CannotFindHost, QT_TRANSLATE_NOOP("ErrorWords", "The name has no address. Check the spelling.")},
    {URLErrorCode::CannotConnectToHost, QT_TRANSLATE_NOOP("ErrorWords", "This address cannot be reached.")},
    {URLErrorCode::NetworkConnectionLost, QT_TRANSLATE_NOOP("ErrorWords", "The connection broke off. Try again.")},
    {URLErrorCode::BadServerResponse, QT_TRANSLATE_NOOP("ErrorWords", "The answer was not understood.")},
    {URLErrorCode::DataLengthExceedsMaximum,
     QT_TRANSLATE_NOOP("ErrorWords", "The answer is larger than Lodestar takes.")},
    {URLErrorCode::SecureConnectionFailed, QT_TRANSLATE_NOOP("ErrorWords", "No secure connection can be made.")},
    {URLErrorCode::ServerCertificateUntrusted, QT_TRANSLATE_NOOP("ErrorWords", "The certificate is not trusted.")},
}};

} // namespace

Error urlError(URLErrorCode code, std::string reason)
{
    const auto* const found = std::ranges::find(words, code, &Words::code);
    const char* const sentence =
        found != words.end() ? found->sentence : QT_TRANSLATE_NOOP("ErrorWords", "The request failed.");
    return {std::string(urlErrorDomain), static_cast<int>(code), sentence, std::move(reason), nullptr};
}

std::string wordsForLogonStatus(int statusCode)
{
    if (statusCode == 401 || statusCode == 403) {
        return QT_TRANSLATE_NOOP("ErrorWords", "The console did not accept user or password.");
    }
    if (statusCode >= 500) {
        return QT_TRANSLATE_NOOP("ErrorWords", "The console has an error. Try again.");
    }
    return QT_TRANSLATE_NOOP("ErrorWords", "The address does not answer as a console.");
}

URLErrorCode urlErrorCodeOfTransfer(int curlCode)
{
    switch (curlCode) {
    case CURLE_URL_MALFORMAT:
    case CURLE_UNSUPPORTED_PROTOCOL:
    case CURLE_LOGIN_DENIED: // libcurl's result for a user name in the address, which requests must not have
        return URLErrorCode::BadURL;
    case CURLE_COULDNT_RESOLVE_HOST:
        return URLErrorCode::CannotFindHost;
    case CURLE_COULDNT_CONNECT:
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
        return URLErrorCode::SecureConnectionFailed;
    case CURLE_WEIRD_SERVER_REPLY:
        return URLErrorCode::BadServerResponse;
    default:
        return URLErrorCode::Unknown;
    }
}

} // namespace lodestar
