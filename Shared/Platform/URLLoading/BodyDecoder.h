// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <span>
#include <string_view>
#include <zlib.h>

namespace lodestar
{

/// Decodes a packed body piece by piece. This class exists because libcurl's own decoding takes a compressed stream
/// that stops half way for a whole one.
class BodyDecoder
{
public:
    using Sink = std::function<bool(std::span<const char>)>; ///< returning false stops the decoding
    enum class Encoding { None, Gzip, Deflate, Unknown };

    /// What a response's Content-Encoding says.
    static Encoding encodingNamed(std::string_view contentEncoding);

    /// For gzip or deflate.
    explicit BodyDecoder(Encoding encoding);
    BodyDecoder(const BodyDecoder&) = delete;
    BodyDecoder& operator=(const BodyDecoder&) = delete;
    ~BodyDecoder();

    /// Decodes the bytes and hands the result to the sink in pieces of bounded size. False when the bytes are damaged,
    /// memory is out or the sink refused.
    bool decode(std::span<const char> bytes, const Sink& sink);
    /// True when the stream ended properly. A body without any bytes is complete.
    bool isComplete() const { return !m_started || m_ended; }

private:
    void setInput(std::span<const char> bytes);
    bool nextMember();

    z_stream m_stream{};
    bool m_started = false;
    bool m_ended = false;
    bool m_mayBeRaw; ///< accepts "deflate" without its zlib header, as some servers send it
};

} // namespace lodestar
