// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace lodestar
{

/// A log file that rotates when it is full: `name`, then `name`.1 (the youngest old file) up to the number of files
/// kept. Files are 0600 in a folder 0700. Bytes that cannot be written, for instance on a full disk, are dropped; the
/// file states their number as soon as it can be written again. No failure reaches the caller. Not thread-safe.
class RotatingLogFile
{
public:
    struct Limits {
        std::size_t fileBytes = std::size_t{1} << 20;
        int files = 4; ///< the number of files kept, the current one included
    };

    RotatingLogFile() = default;
    ~RotatingLogFile();
    RotatingLogFile(const RotatingLogFile&) = delete;
    RotatingLogFile& operator=(const RotatingLogFile&) = delete;

    /// Makes missing folders and opens the file for appending; false when either fails.
    bool open(const std::string& folder, const std::string& name, Limits limits);
    bool isOpen() const { return m_descriptor >= 0; }
    /// Written by `open` and at the top of every new file: readers need it to understand the lines below.
    void setHeader(std::string header) { m_header = std::move(header); }

    /// Appends whole lines, each with its line feed. A file grows past its limit only to hold one line.
    void append(std::string_view lines);
    /// Deletes the rotated files and empties the current file, except for a header.
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
