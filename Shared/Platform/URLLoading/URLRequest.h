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

/// ASCII's capitals in lower case, in every locale: what header fields, encodings and hosts are compared by.
constexpr char lowered(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

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

struct TransferRecord;

/// Who waits for a request's answer. A person in front of a screen goes before a refresh of the fleet.
enum class Urgency { Fleet, Person };

/// A prepared request. A value; the transport takes a copy.
struct URLRequest {
    /// The platform's default time-out.
    static constexpr std::chrono::milliseconds defaultTimeout{60'000};

    std::string url; ///< absolute, "https://…"
    std::string method = "GET";
    HTTPHeaders headers;
    std::string body;
    /// The idle limit: the longest wait for the next byte. The limits of `TransferLimits` hold for the whole transfer
    /// besides.
    std::chrono::milliseconds timeout = defaultTimeout;
    Urgency urgency = Urgency::Person;
    /// Called repeatedly with the number of body bytes sent so far, on the thread that drives the transfer; must not
    /// block.
    std::function<void(std::size_t sent)> bodySent;
    /// Called exactly once, when the transfer has ended and before its completion is told, on the thread that drives
    /// the transfer; must not block. What fails later, such as the unpacking of the body, is not in the record.
    std::function<void(const TransferRecord& record)> ended;
};

/// A server's answer without the body. Status 0 means that there is no response yet.
struct URLResponse {
    std::string url; ///< the last hop's address
    int statusCode = 0;
    HTTPHeaders headers;
    std::int64_t expectedContentLength = -1; ///< -1 when unknown
};

/// A plain call's outcome: a response with its body, or an error.
struct URLLoad {
    URLResponse response;
    std::string body;
};

} // namespace lodestar
