// SPDX-License-Identifier: Apache-2.0
#include "Platform/URLLoading/BodyUnpacker.h"

#include "Platform/URLLoading/NetworkThread.h"
#include "Platform/URLLoading/URLError.h"

#include <chrono>
#include <new>

namespace lodestar
{

namespace
{

constexpr std::chrono::seconds patience{3};

BodyDecoder::Encoding encodingOf(const URLResponse& response)
{
    return BodyDecoder::encodingNamed(response.headers.value("Content-Encoding").value_or(""));
}

} // namespace

BodyUnpacker::BodyUnpacker(const URLResponse& response, std::optional<HeldBytes::Claim> claim, WithoutRoom without)
    : m_limits(TransferLimits::shared()), m_decoder(encodingOf(response)), m_claim(claim), m_without(without)
{
}

bool BodyUnpacker::isNeeded(const URLResponse& response)
{
    return encodingOf(response) != BodyDecoder::Encoding::None;
}

bool BodyUnpacker::unpack(std::span<const char> bytes, const Sink& sink)
{
    if (m_error) {
        return false;
    }
    try {
        if (m_decoder.decode(bytes, [&](std::span<const char> piece) { return take(piece, sink); })) {
            return true;
        }
    } catch (const std::bad_alloc&) {
        m_error = urlError(URLErrorCode::DataLengthExceedsMaximum, "out of memory");
    }
    if (!m_error) {
        m_error = urlError(URLErrorCode::BadServerResponse, "the compressed body is damaged");
    }
    return false;
}

bool BodyUnpacker::take(std::span<const char> piece, const Sink& sink)
{
    if (m_size + piece.size() > m_limits.bodyBytes) {
        m_error = urlError(URLErrorCode::DataLengthExceedsMaximum, "the body is too large");
        return false;
    }
    if (!hold(piece.size())) {
        m_foundNoRoom = true;
        m_error = urlError(URLErrorCode::DataLengthExceedsMaximum, "too many bytes are held");
        return false;
    }
    m_size += piece.size();
    sink(piece);
    return true;
}

std::optional<Error> BodyUnpacker::error() const
{
    if (!m_error && !m_decoder.isComplete()) {
        return urlError(URLErrorCode::NetworkConnectionLost, "the body was cut");
    }
    return m_error;
}

bool BodyUnpacker::hold(std::size_t bytes)
{
    const auto end = std::chrono::steady_clock::now() + patience;
    while (m_claim && !m_held.add(bytes, m_limits.heldBytes, *m_claim)) {
        if (m_without == WithoutRoom::Refuse) {
            return false;
        }
        if (NetworkThread::isQuiet() && m_held.add(bytes, m_limits.heldBytes, HeldBytes::Claim::Whole)) {
            return true;
        }
        if (std::chrono::steady_clock::now() > end) {
            return false;
        }
        HeldBytes::waitForLess();
    }
    return true;
}

} // namespace lodestar
