// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace lodestar
{

/// Decodes a body's content encoding piece by piece. This class exists because libcurl's own decoding takes a
/// compressed stream that stops half way for a whole one.
class BodyDecoder
{
public:
    using Sink = std::function<bool(std::span<const char>)>; ///< returning false stops the decoding

    static bool knows(std::string_view contentEncoding);
    /// Whether the encoding needs decoding.
    static bool isPacked(std::string_view contentEncoding);
    /// None for an unknown encoding. Empty and "identity" pass the bytes through.
    static std::optional<BodyDecoder> make(std::string_view contentEncoding);

    BodyDecoder(BodyDecoder&&) noexcept;
    BodyDecoder& operator=(BodyDecoder&&) noexcept;
    ~BodyDecoder();

    /// Decodes the bytes and hands the result to the sink in pieces of bounded size. False when the bytes are damaged
    /// or the sink refused.
    bool decode(std::span<const char> bytes, const Sink& sink);
    /// True when the stream ended properly. A body without any bytes is complete.
    bool isComplete() const;

private:
    struct Inflater;
    BodyDecoder();
    std::unique_ptr<Inflater> m_inflater; ///< null: bytes pass through
};

} // namespace lodestar
