// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace lodestar
{

/// What went wrong, in one shape that every layer passes on unchanged. A value type; copies are cheap enough for the
/// failure path. An empty `failureReason` means that nobody gave a reason.
struct Error {
    std::string domain;
    int code = 0;
    std::string localizedDescription;
    std::string failureReason;
    std::shared_ptr<const Error> underlying;

    friend bool operator==(const Error& a, const Error& b)
    {
        return a.domain == b.domain && a.code == b.code && a.localizedDescription == b.localizedDescription &&
               a.failureReason == b.failureReason;
    }
};

/// Domain of the transport's errors; the codes are `URLErrorCode`.
inline constexpr std::string_view urlErrorDomain = "URLError";
/// Domain of the object store's errors; the codes are SQLite's extended result codes.
inline constexpr std::string_view storeErrorDomain = "ObjectStore";

/// One line for a log: domain, code, description, reason and the underlying error. Empty ones are left out.
std::string description(const Error& error);
/// Everything but domain and code, as `{key=value, …}`. Logs call this the user information.
std::string userInfoDescription(const Error& error);
/// The text for a person: the error's own description; failing that, a sentence made of the reason, or of domain and
/// code.
std::string shownDescription(const Error& error);

} // namespace lodestar
