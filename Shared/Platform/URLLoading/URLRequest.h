// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lodestar
{

/// Header fields in the order in which they were set. Names compare without regard to case.
class HTTPHeaders
{
public:
    using Field = std::pair<std::string, std::string>;

    /// Replaces the field, or adds it at the end.
    void setValue(std::string_view name, std::string_view value);
    /// Appends to an existing field after ", ", or adds the field.
    void addValue(std::string_view name, std::string_view value);
    void removeValue(std::string_view name);
    std::optional<std::string> value(std::string_view name) const;
    const std::vector<Field>& fields() const { return m_fields; }

private:
    std::vector<Field> m_fields;
};

/// Who waits for a request's answer: a person in front of a screen goes before the refresh of a fleet.
enum class Urgency { Fleet, Person };

/// A prepared request. A value; the transport takes a copy.
struct URLRequest {
    /// The platform's default time-out.
    static constexpr std::chrono::milliseconds defaultTimeout{60'000};

    std::string url; ///< absolute, "https://…"
    std::string method = "GET";
    HTTPHeaders headers;
    std::string body;
    /// Idle limit: the longest wait for the next byte. The whole transfer has the limits of `TransferLimits`
    /// besides.
    std::chrono::milliseconds timeout = defaultTimeout;
    Urgency urgency = Urgency::Person;
    /// Told how many of the body's bytes have gone, time and again, on the thread that drives the transfer; must not
    /// block.
    std::function<void(std::size_t sent)> bodySent;
};

/// What a server answered, without the body. Status 0 is "no response yet".
struct URLResponse {
    std::string url; ///< of the last hop
    int statusCode = 0;
    HTTPHeaders headers;
    std::int64_t expectedContentLength = -1; ///< -1 when unknown
};

} // namespace lodestar
