// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

namespace lodestar::simulator
{

/// The bytes of an answer's body, made while they are sent.
class Body
{
public:
    virtual ~Body() = default;
    virtual std::uint64_t size() const = 0;
    /// Writes up to `count` more bytes and returns how many; 0 at the end.
    virtual std::size_t read(char* out, std::size_t count) = 0;
};

using BodyPtr = std::unique_ptr<Body>;

BodyPtr makeBody(std::string text);
BodyPtr makeBody(std::shared_ptr<const std::string> text);
/// `first`, then `repeated` until the body has at least `total` bytes, then `last`.
BodyPtr makeRepeatingBody(std::string first, std::string repeated, std::uint64_t total, std::string last);
/// The inner body in the chunked transfer coding. `size` is the inner body's.
BodyPtr makeChunkedBody(BodyPtr inner);

std::string readAll(Body& body);

/// The bytes in the gzip format.
std::string gzipped(const std::string& bytes);
/// A small gzip stream that unpacks to at least `total` blanks: `total` rounded up to a megabyte.
BodyPtr makeGzipBomb(std::uint64_t total);

} // namespace lodestar::simulator
