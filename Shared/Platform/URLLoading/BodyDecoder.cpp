// SPDX-License-Identifier: Apache-2.0
#include "Platform/URLLoading/BodyDecoder.h"

#include <array>
#include <zlib.h>

namespace lodestar
{

namespace
{

constexpr int anyHeader = 15 + 32; // largest window; zlib tells zlib and gzip headers apart
constexpr int noHeader = -15;
constexpr std::size_t pieceSize = 32UL * 1024;

std::string plainName(std::string_view contentEncoding)
{
    std::string name;
    for (const char c : contentEncoding) {
        if (c != ' ' && c != '\t') {
            name.push_back(c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c);
        }
    }
    return name;
}

} // namespace

struct BodyDecoder::Inflater {
    explicit Inflater(bool rawAllowed) : mayBeRaw(rawAllowed) { usable = inflateInit2(&stream, anyHeader) == Z_OK; }
    ~Inflater()
    {
        if (usable) {
            inflateEnd(&stream);
        }
    }
    Inflater(const Inflater&) = delete;
    Inflater& operator=(const Inflater&) = delete;

    bool run(std::span<const char> bytes, const Sink& sink);
    bool nextMember();

    z_stream stream{};
    bool usable = false;
    bool started = false;
    bool ended = false;
    bool mayBeRaw; ///< accepts "deflate" without its zlib header, as some servers send it
};

bool BodyDecoder::Inflater::run(std::span<const char> bytes, const Sink& sink)
{
    std::array<char, pieceSize> piece;
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data()));
    stream.avail_in = static_cast<uInt>(bytes.size());
    for (;;) {
        if (ended && !nextMember()) {
            return true;
        }
        stream.next_out = reinterpret_cast<Bytef*>(piece.data());
        stream.avail_out = pieceSize;
        const int result = inflate(&stream, Z_NO_FLUSH);
        if (result == Z_BUF_ERROR) {
            return true; // these bytes are used up
        }
        if (result == Z_DATA_ERROR && mayBeRaw && !started) {
            mayBeRaw = false;
            stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data()));
            stream.avail_in = static_cast<uInt>(bytes.size());
            if (inflateReset2(&stream, noHeader) != Z_OK) {
                return false;
            }
            continue;
        }
        if (result != Z_OK && result != Z_STREAM_END) {
            return false;
        }
        started = true;
        ended = result == Z_STREAM_END;
        const std::size_t produced = pieceSize - stream.avail_out;
        if (produced != 0 && !sink({piece.data(), produced})) {
            return false;
        }
    }
}

/// Starts the next gzip member: a body may have several. Any other bytes after the end are padding and are ignored.
bool BodyDecoder::Inflater::nextMember()
{
    if (stream.avail_in == 0 || *stream.next_in != 0x1f || inflateReset2(&stream, anyHeader) != Z_OK) {
        return false;
    }
    ended = false;
    return true;
}

BodyDecoder::BodyDecoder() = default;
BodyDecoder::BodyDecoder(BodyDecoder&&) noexcept = default;
BodyDecoder& BodyDecoder::operator=(BodyDecoder&&) noexcept = default;
BodyDecoder::~BodyDecoder() = default;

std::optional<BodyDecoder> BodyDecoder::make(std::string_view contentEncoding)
{
    if (!knows(contentEncoding)) {
        return std::nullopt;
    }
    BodyDecoder decoder;
    if (!isPacked(contentEncoding)) {
        return decoder;
    }
    decoder.m_inflater = std::make_unique<Inflater>(plainName(contentEncoding) == "deflate");
    return decoder.m_inflater->usable ? std::optional(std::move(decoder)) : std::nullopt;
}

bool BodyDecoder::knows(std::string_view contentEncoding)
{
    const std::string name = plainName(contentEncoding);
    return name == "gzip" || name == "x-gzip" || name == "deflate" || !isPacked(contentEncoding);
}

bool BodyDecoder::isPacked(std::string_view contentEncoding)
{
    const std::string name = plainName(contentEncoding);
    return !name.empty() && name != "identity";
}

bool BodyDecoder::decode(std::span<const char> bytes, const Sink& sink)
{
    if (bytes.empty()) {
        return true;
    }
    return m_inflater != nullptr ? m_inflater->run(bytes, sink) : sink(bytes);
}

bool BodyDecoder::isComplete() const
{
    return m_inflater == nullptr || !m_inflater->started || m_inflater->ended;
}

} // namespace lodestar
