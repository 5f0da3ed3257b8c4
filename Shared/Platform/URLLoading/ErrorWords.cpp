// SPDX-License-Identifier: Apache-2.0
#include "Platform/URLLoading/ErrorWords.h"

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

constexpr std::array<Words, 11> words = {{
    {URLErrorCode::Cancelled, QT_TRANSLATE_NOOP("ErrorWords", "The request was cancelled.")},
    {URLErrorCode::BadURL, QT_TRANSLATE_NOOP("ErrorWords", "The address is not valid.")},
    {URLErrorCode::TimedOut, QT_TRANSLATE_NOOP("ErrorWords", "No answer came in time. Check the network.")},
    {URLErrorCode::CannotFindHost, QT_TRANSLATE_NOOP("ErrorWords", "The name has no address. Check the spelling.")},
    {URLErrorCode::CannotConnectToHost, QT_TRANSLATE_NOOP("ErrorWords", "This address cannot be reached.")},
    {URLErrorCode::NetworkConnectionLost, QT_TRANSLATE_NOOP("ErrorWords", "The connection broke off. Try again.")},
    {URLErrorCode::TooManyRedirects, QT_TRANSLATE_NOOP("ErrorWords", "The address redirects without end.")},
    {URLErrorCode::BadServerResponse, QT_TRANSLATE_NOOP("ErrorWords", "The answer was not understood.")},
    {URLErrorCode::DataLengthExceedsMaximum,
     QT_TRANSLATE_NOOP("ErrorWords", "The answer is larger than Lodestar takes.")},
    {URLErrorCode::SecureConnectionFailed, QT_TRANSLATE_NOOP("ErrorWords", "No secure connection can be made.")},
    {URLErrorCode::ServerCertificateUntrusted, QT_TRANSLATE_NOOP("ErrorWords", "The certificate is not trusted.")},
}};

} // namespace

std::string wordsFor(URLErrorCode code)
{
    const auto* const found = std::ranges::find(words, code, &Words::code);
    return found != words.end() ? found->sentence : QT_TRANSLATE_NOOP("ErrorWords", "The request failed.");
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

} // namespace lodestar
