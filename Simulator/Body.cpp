// SPDX-License-Identifier: Apache-2.0
#include "Simulator/Body.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <stdexcept>
#include <utility>
#include <zlib.h>

namespace lodestar::simulator
{

namespace
{

class TextBody final : public Body
{
public:
    explicit TextBody(std::shared_ptr<const std::string> text) : m_text(std::move(text)) {}
    std::uint64_t size() const override { return m_text->size(); }
    std::size_t read(char* out, std::size_t count) override
    {
        const std::size_t n = m_text->copy(out, count, m_at);
        m_at += n;
        return n;
    }

private:
    std::shared_ptr<const std::string> m_text;
    std::size_t m_at = 0;
};

class RepeatingBody final : public Body
{
public:
    RepeatingBody(std::string first, std::string repeated, std::uint64_t total, std::string last)
        : m_first(std::move(first)),
          m_repeated(std::move(repeated)),
          m_last(std::move(last)),
          m_rounds((total + m_repeated.size() - 1) / m_repeated.size())
    {
    }
    std::uint64_t size() const override { return m_first.size() + m_rounds * m_repeated.size() + m_last.size(); }
    std::size_t read(char* out, std::size_t count) override
    {
        std::size_t done = 0;
        while (done < count) {
            const std::string* part = &m_repeated;
            if (m_round == 0) {
                part = &m_first;
            } else if (m_round > m_rounds) {
                part = &m_last;
            }
            const std::size_t n = part->copy(out + done, count - done, m_at);
            m_at += n;
            done += n;
            if (m_at == part->size()) {
                if (m_round > m_rounds) {
                    break;
                }
                ++m_round;
                m_at = 0;
            }
        }
        return done;
    }

private:
    std::string m_first;
    std::string m_repeated;
    std::string m_last;
    std::uint64_t m_rounds;
    /// 0 in the first part; in the repeated part, the repetition's number from 1; in the last part, one more than that.
    std::uint64_t m_round = 0;
    std::size_t m_at = 0;
};

class ChunkedBody final : public Body
{
public:
    explicit ChunkedBody(BodyPtr inner) : m_inner(std::move(inner)) {}
    std::uint64_t size() const override { return m_inner->size(); }
    std::size_t read(char* out, std::size_t count) override
    {
        if (m_at == m_pending.size() && !m_ended) {
            nextChunk();
        }
        const std::size_t n = m_pending.copy(out, count, m_at);
        m_at += n;
        return n;
    }

private:
    void nextChunk()
    {
        std::array<char, 8192> bytes{};
        const std::size_t n = m_inner->read(bytes.data(), bytes.size());
        std::array<char, 24> line{};
        std::snprintf(line.data(), line.size(), "%zx\r\n", n);
        m_pending = line.data();
        m_pending.append(bytes.data(), n).append("\r\n");
        m_at = 0;
        m_ended = n == 0;
    }

    BodyPtr m_inner;
    std::string m_pending;
    std::size_t m_at = 0;
    bool m_ended = false;
};

enum class Format { Gzip = 15 + 16, Raw = -15 };

std::string deflated(const std::string& bytes, Format format, int flush)
{
    z_stream stream{};
    if (deflateInit2(&stream, 1, Z_DEFLATED, static_cast<int>(format), 8, Z_DEFAULT_STRATEGY) != Z_OK) {
        throw std::runtime_error("deflate");
    }
    std::string out(deflateBound(&stream, bytes.size()) + 64, '\0');
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data()));
    stream.avail_in = static_cast<uInt>(bytes.size());
    stream.next_out = reinterpret_cast<Bytef*>(out.data());
    stream.avail_out = static_cast<uInt>(out.size());
    deflate(&stream, flush);
    out.resize(stream.total_out);
    deflateEnd(&stream);
    return out;
}

std::string littleEndian(std::uint32_t number)
{
    return {static_cast<char>(number & 0xFFU), static_cast<char>(number >> 8U & 0xFFU),
            static_cast<char>(number >> 16U & 0xFFU), static_cast<char>(number >> 24U)};
}

} // namespace

BodyPtr makeBody(std::string text)
{
    return makeBody(std::make_shared<const std::string>(std::move(text)));
}

BodyPtr makeBody(std::shared_ptr<const std::string> text)
{
    return std::make_unique<TextBody>(std::move(text));
}

BodyPtr makeRepeatingBody(std::string first, std::string repeated, std::uint64_t total, std::string last)
{
    return std::make_unique<RepeatingBody>(std::move(first), std::move(repeated), total, std::move(last));
}

BodyPtr makeChunkedBody(BodyPtr inner)
{
    return std::make_unique<ChunkedBody>(std::move(inner));
}

std::string readAll(Body& body)
{
    std::string text;
    std::array<char, 16384> bytes{};
    while (const std::size_t n = body.read(bytes.data(), bytes.size())) {
        text.append(bytes.data(), n);
    }
    return text;
}

std::string gzipped(const std::string& bytes)
{
    return deflated(bytes, Format::Gzip, Z_FINISH);
}

// The block ends in a full flush, so that it unpacks on its own: one packed megabyte can be repeated, and the whole
// need not be packed.
BodyPtr makeGzipBomb(std::uint64_t total)
{
    const std::string megabyte(1U << 20U, ' ');
    const std::string block = deflated(megabyte, Format::Raw, Z_FULL_FLUSH);
    const std::uint64_t blocks = (total + megabyte.size() - 1) / megabyte.size();
    const uLong one = crc32(0, reinterpret_cast<const Bytef*>(megabyte.data()), static_cast<uInt>(megabyte.size()));
    uLong sum = 0;
    for (std::uint64_t i = 0; i < blocks; ++i) {
        sum = crc32_combine(sum, one, static_cast<z_off_t>(megabyte.size()));
    }
    const std::string header("\x1f\x8b\x08\0\0\0\0\0\0\xff", 10);
    const std::string end("\x03\0", 2);
    return makeRepeatingBody(header, block, blocks * block.size(),
                             end + littleEndian(static_cast<std::uint32_t>(sum)) +
                                 littleEndian(static_cast<std::uint32_t>(blocks * megabyte.size())));
}

} // namespace lodestar::simulator
