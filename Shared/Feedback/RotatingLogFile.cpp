// SPDX-License-Identifier: Apache-2.0
#include "Feedback/RotatingLogFile.h"

#include "Platform/PrivateFile.h"

#include <fmt/core.h>

#include <algorithm>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace lodestar
{

RotatingLogFile::~RotatingLogFile()
{
    close();
}

bool RotatingLogFile::open(const std::string& folder, const std::string& name, Limits limits)
{
    close();
    // A folder whose mode cannot be changed still takes a log.
    std::error_code ignored;
    if (!makePrivateFolder(folder, FolderThere::Tightened) && !std::filesystem::is_directory(folder, ignored)) {
        return false;
    }
    m_path = folder + "/" + name;
    m_limits = limits;
    m_midLine = false;
    m_bytesLost = 0;
    if (!openFile()) {
        return false;
    }
    // The last run may have ended in the middle of a line.
    char last = '\n';
    if (m_size > 0 && ::pread(m_descriptor, &last, 1, static_cast<off_t>(m_size - 1)) == 1) {
        m_midLine = last != '\n';
    }
    append(m_header);
    return true;
}

void RotatingLogFile::append(std::string_view lines)
{
    while (isOpen() && !lines.empty()) {
        std::size_t length = fittingLength(lines);
        if (length == 0) {
            if (m_size > m_header.size()) {
                rotate();
            }
            // A line too long for any file gets a file of its own. When no file can be rotated, every further line is
            // appended here.
            length = std::max(fittingLength(lines), std::min(lines.find('\n'), lines.size() - 1) + 1);
        }
        appendPiece(lines.substr(0, length));
        lines.remove_prefix(length);
    }
}

std::size_t RotatingLogFile::fittingLength(std::string_view lines) const
{
    const std::size_t room = m_size < m_limits.fileBytes ? m_limits.fileBytes - m_size : 0;
    if (lines.size() <= room) {
        return lines.size();
    }
    const std::size_t lastFeed = room == 0 ? std::string_view::npos : lines.rfind('\n', room - 1);
    return lastFeed == std::string_view::npos ? 0 : lastFeed + 1;
}

void RotatingLogFile::appendPiece(std::string_view lines)
{
    std::string repaired;
    if (m_midLine || m_bytesLost > 0) {
        repaired = m_midLine ? "\n" : "";
        if (m_bytesLost > 0) {
            repaired += fmt::format("({} bytes of log could not be written)\n", m_bytesLost);
        }
        if (writeBytes(repaired) < repaired.size()) {
            m_bytesLost += lines.size();
            return;
        }
        m_bytesLost = 0;
    }
    m_bytesLost += lines.size() - writeBytes(lines);
}

std::size_t RotatingLogFile::writeBytes(std::string_view bytes)
{
    const std::size_t written = writeFully(m_descriptor, bytes);
    m_size += written;
    if (written > 0) {
        m_midLine = bytes[written - 1] != '\n';
    }
    return written;
}

void RotatingLogFile::rotate()
{
    for (int number = m_limits.files - 1; number > 0; --number) {
        const std::string older = m_path + "." + std::to_string(number);
        const std::string younger = number == 1 ? m_path : m_path + "." + std::to_string(number - 1);
        std::rename(younger.c_str(), older.c_str()); // missing older files are no failure
    }
    const int previous = std::exchange(m_descriptor, -1);
    if (!openFile()) {
        // No descriptor is free, or the folder is gone: go on in the old file and try again after as many bytes.
        m_descriptor = previous;
        m_size = 0;
        return;
    }
    ::close(previous);
    if (m_size > 0 && ::ftruncate(m_descriptor, 0) == 0) {
        // The file could not be renamed, or no old files are kept: new lines are worth more than old ones.
        m_size = 0;
    }
    m_midLine = false;
    if (!m_header.empty()) {
        appendPiece(m_header);
    }
}

void RotatingLogFile::empty()
{
    if (!isOpen()) {
        return;
    }
    for (int number = 1; number < m_limits.files; ++number) {
        ::unlink((m_path + "." + std::to_string(number)).c_str());
    }
    if (::ftruncate(m_descriptor, 0) == 0) {
        m_size = 0;
        m_midLine = false;
        m_bytesLost = 0;
        append(m_header);
    }
}

bool RotatingLogFile::openFile()
{
    // Follows no link: the log must not be appended to a file elsewhere.
    m_descriptor = ::open(m_path.c_str(), O_RDWR | O_APPEND | O_CREAT | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR);
    struct stat status = {};
    if (m_descriptor < 0 || ::fstat(m_descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
        close();
        return false;
    }
    ::fchmod(m_descriptor, S_IRUSR | S_IWUSR);
    m_size = static_cast<std::size_t>(status.st_size);
    return true;
}

void RotatingLogFile::close()
{
    if (m_descriptor >= 0) {
        ::close(m_descriptor);
        m_descriptor = -1;
    }
}

} // namespace lodestar
