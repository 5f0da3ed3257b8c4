// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace lodestar
{

/// A log file that is set aside when it is full: `name`, then `name`.1 (the youngest of the old ones) up to the number
/// kept. Files are 0600 in a folder 0700. What cannot be written, on a full disk for one, is dropped and accounted for
/// in the file as soon as it can be written again; nothing here ever fails its caller. Not thread-safe.
class RotatingLogFile
{
public:
    struct Limits {
        std::size_t fileBytes = std::size_t{1} << 20;
        int files = 4; ///< the current one included
    };

    RotatingLogFile() = default;
    ~RotatingLogFile();
    RotatingLogFile(RotatingLogFile&& other) noexcept;
    RotatingLogFile& operator=(RotatingLogFile&& other) noexcept;

    /// Makes the folder (and those above it) when missing and opens the file to append to it; false when either fails.
    bool open(const std::string& folder, const std::string& name, Limits limits);
    bool isOpen() const { return m_descriptor >= 0; }
    /// Written at the top of every new file and by `open`: what a reader needs to make sense of the lines below it.
    void setHeader(std::string header) { m_header = std::move(header); }

    /// Appends whole lines, each with its line feed. A file grows past its limit only to hold one line.
    void append(std::string_view lines);
    /// Takes away the files that were set aside and what stands in this one, but for a header.
    void empty();

private:
    void close();
    bool openFile();
    void rotate();
    std::size_t fittingLength(std::string_view lines) const;
    void appendPiece(std::string_view lines);
    std::size_t writeBytes(std::string_view bytes);

    std::string m_path;
    std::string m_header;
    Limits m_limits;
    int m_descriptor = -1;
    std::size_t m_size = 0;
    std::size_t m_bytesLost = 0;
    bool m_midLine = false;
};

} // namespace lodestar
