// SPDX-License-Identifier: Apache-2.0
#include "Fleet/Reading.h"

#include "Controllers/REST/Exchange.h"
#include "Platform/URLLoading/URLError.h"

namespace lodestar
{

namespace
{

ReadingReason reasonOfStatus(int status)
{
    if (status == 401 || status == 403) {
        return ReadingReason::WrongCredentials;
    }
    return status >= 500 && status < 600 ? ReadingReason::ServerError : ReadingReason::OtherStatus;
}

ReadingReason reasonOfTransport(URLErrorCode code)
{
    switch (code) {
    case URLErrorCode::TimedOut:
        return ReadingReason::TimedOut;
    case URLErrorCode::CannotFindHost:
        return ReadingReason::NameNotFound;
    case URLErrorCode::CannotConnectToHost:
        return ReadingReason::ConnectionRefused;
    case URLErrorCode::NetworkConnectionLost:
        return ReadingReason::ConnectionLost;
    case URLErrorCode::TooManyRedirects:
        return ReadingReason::TooManyRedirects;
    case URLErrorCode::BadServerResponse:
        return ReadingReason::NotUnderstood;
    case URLErrorCode::DataLengthExceedsMaximum:
        return ReadingReason::TooLarge;
    case URLErrorCode::SecureConnectionFailed:
        return ReadingReason::NoSecureConnection;
    case URLErrorCode::ServerCertificateUntrusted:
        return ReadingReason::CertificateChanged;
    case URLErrorCode::Unknown:
    case URLErrorCode::Cancelled:
    case URLErrorCode::BadURL:
        break;
    }
    return ReadingReason::Unknown;
}

} // namespace

std::vector<std::string_view> Reading::missingFeeds() const
{
    std::vector<std::string_view> missing;
    for (const FeedReading& feed : feeds) {
        if (feed.error) {
            missing.push_back(feed.type);
        }
    }
    return missing;
}

std::optional<WallTime> Reading::oldestFeed() const
{
    std::optional<WallTime> oldest;
    for (const FeedReading& feed : feeds) {
        if (feed.readAt && (!oldest || *feed.readAt < *oldest)) {
            oldest = feed.readAt;
        }
    }
    return oldest;
}

int statusOf(const Error& error)
{
    return error.domain == statusErrorDomain ? error.code : 0;
}

ReadingReason reasonOf(const Error& error)
{
    if (error.domain == statusErrorDomain) {
        return reasonOfStatus(error.code);
    }
    if (error.domain == sessionKeyErrorDomain) {
        return ReadingReason::NoSessionKey;
    }
    return error.domain == urlErrorDomain ? reasonOfTransport(static_cast<URLErrorCode>(error.code))
                                          : ReadingReason::Unknown;
}

} // namespace lodestar
