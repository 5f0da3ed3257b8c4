// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Error.h"

#include <string>

namespace lodestar
{

/// Codes of the transport's errors, in the domain `urlErrorDomain`.
enum class URLErrorCode {
    Unknown = -1,
    Cancelled = -999,
    BadURL = -1000,
    TimedOut = -1001,
    CannotFindHost = -1003,
    CannotConnectToHost = -1004,
    NetworkConnectionLost = -1005,
    TooManyRedirects = -1007,
    BadServerResponse = -1011,
    DataLengthExceedsMaximum = -1103,
    SecureConnectionFailed = -1200,
    ServerCertificateUntrusted = -1202,
};

/// An error of the transport. The reason is for the log. The description is a sentence for the user, from the one table
/// of reasons and sentences. The sentences are English; the screen that shows one translates it, in the context
/// "ErrorWords". Each fits on one line on a phone.
Error urlError(URLErrorCode code, std::string reason = {});

/// Such a sentence for a logon that a console answers with a status other than 200.
std::string wordsForLogonStatus(int statusCode);

/// The error code that libcurl's result (a `CURLcode`) stands for.
URLErrorCode urlErrorCodeOfTransfer(int curlCode);

} // namespace lodestar
