// SPDX-License-Identifier: Apache-2.0
#include "Platform/URLLoading/BodyDecoder.h"

#include "Platform/URLLoading/URLRequest.h"

#include <array>

namespace lodestar
{

namespace
{

constexpr int anyHeader = 15 + 32; // largest window; zlib tells zlib and gzip headers apart
constexpr int noHeader = -15;
constexpr std::size_t pieceSize = 32UL * 1024;

} // namespace

BodyDecoder::Encoding BodyDecoder::encodingNamed(std::string_view contentEncoding)
{
    std::string name;
    for (const char c : contentEncoding) {
        if (c != ' ' && c != '\t') {
            name.push_back(lowered(c));
        }
    }
    if (name.empty() || name == "identity") {
        return Encoding::None;
    }
    if (name == "gzip" || name == "x-gzip") {
        return Encoding::Gzip;
    }
    return name == "deflate" ? Encoding::Deflate : Encoding::Unknown;
}

BodyDecoder::BodyDecoder(Encoding encoding) : m_mayBeRaw(encoding == Encoding::Deflate)
{
    // When memory is out, the stream stays without a state, and `inflate` refuses it.
    static_cast<void>(inflateInit2(&m_stream, anyHeader));
}

BodyDecoder::~BodyDecoder()
{
    inflateEnd(&m_stream);
}

void BodyDecoder::setInput(std::span<const char> bytes)
{
    m_stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data()));
    m_stream.avail_in = static_cast<uInt>(bytes.size());
}

bool BodyDecoder::decode(std::span<const char> bytes, const Sink& sink)
{
    std::array<char, pieceSize> piece;
    setInput(bytes);
    for (;;) {
        if (m_ended && !nextMember()) {
            return true;
        }
        m_stream.next_out = reinterpret_cast<Bytef*>(piece.data());
        m_stream.avail_out = pieceSize;
        const int result = inflate(&m_stream, Z_NO_FLUSH);
        if (result == Z_BUF_ERROR) {
            return true; // these bytes are used up
        }
        if (result == Z_DATA_ERROR && m_mayBeRaw && !m_started) {
            m_mayBeRaw = false;
            setInput(bytes);
            if (inflateReset2(&m_stream, noHeader) != Z_OK) {
                return false;
            }
            continue;
        }
        if (result != Z_OK && result != Z_STREAM_END) {
            return false;
        }
        m_started = true;
        m_ended = result == Z_STREAM_END;
        const std::size_t produced = pieceSize - m_stream.avail_out;
        if (produced != 0 && !sink({piece.data(), produced})) {
            return false;
        }
    }
}

/// Starts the next gzip member: a body may have several. Any other bytes after the end are padding and are ignored.
bool BodyDecoder::nextMember()
{
    if (m_stream.avail_in == 0 || *m_stream.next_in != 0x1f || inflateReset2(&m_stream, anyHeader) != Z_OK) {
        return false;
    }
    m_ended = false;
    return true;
}

} // namespace lodestar
