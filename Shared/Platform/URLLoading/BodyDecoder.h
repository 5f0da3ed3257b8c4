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

/// Undoes a body's content encoding piece by piece. It exists because libcurl's own decoding takes a compressed stream
/// that stops half way for a whole one.
class BodyDecoder
{
public:
    using Sink = std::function<bool(std::span<const char>)>; ///< false stops the decoding

    static bool knows(std::string_view contentEncoding);
    /// Whether there is anything to undo.
    static bool isPacked(std::string_view contentEncoding);
    /// None for an encoding that was not asked for. Empty and "identity" pass the bytes through.
    static std::optional<BodyDecoder> make(std::string_view contentEncoding);

    BodyDecoder(BodyDecoder&&) noexcept;
    BodyDecoder& operator=(BodyDecoder&&) noexcept;
    ~BodyDecoder();

    /// Hands on what the bytes decode to, in pieces of bounded size. False when the bytes are damaged or the sink
    /// refused.
    bool decode(std::span<const char> bytes, const Sink& sink);
    /// True when the stream ended where it had to. A body of no bytes at all is whole.
    bool isComplete() const;

private:
    struct Inflater;
    BodyDecoder();
    std::unique_ptr<Inflater> m_inflater; ///< none: bytes pass through
};

} // namespace lodestar
