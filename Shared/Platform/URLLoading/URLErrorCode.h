// SPDX-License-Identifier: Apache-2.0
#pragma once

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

} // namespace lodestar
