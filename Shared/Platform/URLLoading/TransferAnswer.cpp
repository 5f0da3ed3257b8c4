// SPDX-License-Identifier: Apache-2.0
// What a transfer does with the bytes of an answer: which it takes, how many, and when it makes them wait.
#include "Platform/URLLoading/BodyDecoder.h"
#include "Platform/URLLoading/Redirect.h"
#include "Platform/URLLoading/Transfer.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace lodestar
{

namespace
{

constexpr std::size_t ordinaryBody = 1024UL * 1024;
constexpr std::size_t stepOfBody = 256UL * 1024;

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view blanks = " \t\r\n";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

template <typename Number>
std::optional<Number> numberIn(std::string_view text)
{
    Number number{};
    const auto [end, problem] = std::from_chars(text.data(), text.data() + text.size(), number);
    return problem == std::errc() && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

int statusOfLine(std::string_view line)
{
    const std::size_t blank = line.find(' ');
    return blank == std::string_view::npos ? 0 : numberIn<int>(line.substr(blank + 1, 3)).value_or(0);
}

} // namespace

bool Transfer::headerLine(std::string_view line)
{
    m_lastProgress = Clock::now();
    m_headerBytes += line.size();
    m_received += line.size();
    if (m_headerBytes > m_limits.headerBytes) {
        refuse(URLErrorCode::DataLengthExceedsMaximum, "too many header bytes");
        return false;
    }
    if (line.starts_with("HTTP/")) {
        m_response = URLResponse{m_request.url, statusOfLine(line), {}, -1};
        m_answered = m_lastProgress;
        m_recorder.answered(m_answered);
        m_inHeaders = true;
        return true;
    }
    if (!m_inHeaders) {
        return true; // a trailer, which is ignored
    }
    const std::string_view text = trimmed(line);
    if (text.empty()) {
        m_inHeaders = false;
        const bool interim = m_response.statusCode >= 100 && m_response.statusCode < 200;
        return interim || headersComplete();
    }
    if (const std::size_t colon = text.find(':'); colon != std::string_view::npos) {
        m_response.headers.addValue(trimmed(text.substr(0, colon)), trimmed(text.substr(colon + 1)));
    }
    return true;
}

bool Transfer::headersComplete()
{
    m_inBody = true;
    m_bodyBytes = 0;
    m_held.reset();
    const std::string encoding = m_response.headers.value("Content-Encoding").value_or("");
    if (BodyDecoder::encodingNamed(encoding) == BodyDecoder::Encoding::Unknown) {
        refuse(URLErrorCode::BadServerResponse, "unknown content encoding");
        return false;
    }
    const auto length = m_response.headers.value("Content-Length");
    const auto number = length ? numberIn<std::int64_t>(*length) : std::nullopt;
    if (length && !number) {
        // libcurl accepts two lengths, and then nobody can tell where the body ends.
        refuse(URLErrorCode::BadServerResponse, "the body's length is not one number");
        return false;
    }
    m_next = requestAfterResponse(m_request, m_response);
    if (m_next && m_redirects >= m_limits.redirects) {
        m_next.reset();
        m_recorder.redirectedTooOften();
    }
    if (number && encoding.empty()) {
        m_response.expectedContentLength = *number;
    }
    if (number && !m_next && *number > static_cast<std::int64_t>(m_limits.bodyBytes)) {
        refuse(URLErrorCode::DataLengthExceedsMaximum, "the body is too large");
        return false;
    }
    m_client->didReceiveResponse(m_response);
    return true;
}

bool Transfer::bodyBytes(std::span<const char> bytes)
{
    m_lastProgress = Clock::now();
    if (m_bodyBytes + bytes.size() > m_limits.bodyBytes) {
        refuse(URLErrorCode::DataLengthExceedsMaximum, "the body is too large");
        return false;
    }
    // A redirect's body is dropped: it answers nobody.
    if (!m_next) {
        if (!hasRoom(bytes.size())) {
            return false;
        }
        m_client->didReceiveData(bytes);
    }
    m_bodyBytes += bytes.size();
    m_received += bytes.size();
    return true;
}

/// False when the body must wait or is refused; after a wait libcurl hands in the same bytes again. Room is taken in
/// steps, but for a body of known, ordinary size all at once: thousands of half-received bodies that all wait for more
/// room would fill the limit for ever.
bool Transfer::hasRoom(std::size_t bytes)
{
    const std::size_t needed = m_bodyBytes + bytes;
    if (needed <= m_held.count()) {
        return true;
    }
    const bool mayPause = m_whenPaused != nullptr;
    const HeldBytes::Claim claim = mayPause ? m_claim : HeldBytes::Claim::Whole;
    const std::size_t missing = needed - m_held.count();
    m_nextHeld = std::max(missing, nextStep());
    if (m_held.add(m_nextHeld, m_limits.heldBytes, claim) || m_held.add(missing, m_limits.heldBytes, claim)) {
        m_hasPaused = false;
        return true;
    }
    if (!mayPause) {
        refuseForRoom();
        return false;
    }
    m_paused = true;
    if (!std::exchange(m_hasPaused, true)) {
        m_pausedSince = m_lastProgress;
    }
    m_whenPaused(*this);
    return false;
}

std::size_t Transfer::nextStep() const
{
    const auto length = m_response.headers.value("Content-Length");
    const auto whole = length ? numberIn<std::size_t>(*length) : std::nullopt;
    return whole && *whole <= ordinaryBody ? *whole - std::min(*whole, m_held.count()) : stepOfBody;
}

bool Transfer::goOn()
{
    m_paused = false;
    m_lastProgress = Clock::now();
    return curl().easyPause(m_connection.easy.get(), CURLPAUSE_CONT) == CURLE_OK;
}

void Transfer::rest(bool rests)
{
    if (m_inBody && !m_paused) {
        curl().easyPause(m_connection.easy.get(), rests ? CURLPAUSE_RECV : CURLPAUSE_CONT);
    }
}

void Transfer::refuseForRoom()
{
    refuse(URLErrorCode::DataLengthExceedsMaximum, "too many bytes are held");
}

/// libcurl takes any end of the stream for the end of a body without a length; only the notice tells a whole body from
/// a cut one. Looks while libcurl still has the connection: at the end of the transfer it has closed the connection.
void Transfer::noteCloseNotice()
{
    if (const ssl_st* const open = m_inBody ? connection() : nullptr; open != nullptr) {
        m_hasCloseNotice = curl().hasCloseNotice(open);
    }
}

/// A chunk's extension may be endless, and libcurl reports none of its bytes.
bool Transfer::framingIsBounded()
{
    if (!m_response.headers.value("Transfer-Encoding")) {
        return true;
    }
    const auto received = static_cast<std::int64_t>(m_received);
    const std::int64_t unseen = wireBytes() - received - m_unseenBefore;
    if (unseen <= static_cast<std::int64_t>(m_limits.framingBytes) + received) {
        return true;
    }
    refuse(URLErrorCode::DataLengthExceedsMaximum, "too many bytes around the body");
    return false;
}

} // namespace lodestar
