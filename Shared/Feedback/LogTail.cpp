// SPDX-License-Identifier: Apache-2.0
#include "Feedback/LogTail.h"

#include "Platform/PrivateFile.h"

#include <fmt/core.h>

#include <unistd.h>
#include <utility>

namespace lodestar
{

namespace
{

/// The end of a file, at most `bytes` bytes; empty when the file cannot be read.
std::string endOf(const std::string& path, std::size_t bytes)
{
    Result<std::string> end = readPrivateFile(path, bytes, FilePart::End);
    return end ? std::move(end).value() : std::string();
}

/// The last whole lines of the text, at most `bytes` bytes.
std::string wholeLines(std::string text, std::size_t bytes)
{
    if (text.size() > bytes) {
        const std::size_t feed = text.find('\n', text.size() - bytes - 1);
        text.erase(0, feed == std::string::npos ? text.size() : feed + 1);
    }
    return text;
}

/// The end of the youngest two files, with one byte more than asked for: that byte tells whether the first line is
/// whole.
std::string lastFiles(const std::string& folder, std::size_t bytes)
{
    const std::string path = folder + "/lodestar.log";
    std::string text = endOf(path, bytes + 1);
    if (text.size() <= bytes) {
        text.insert(0, endOf(path + ".1", bytes + 1 - text.size()));
    }
    return text;
}

} // namespace

std::string logTail(const std::string& folder, std::size_t bytes)
{
    return wholeLines(lastFiles(folder, bytes), bytes);
}

std::string logTailBeforeThisRun(const std::string& folder, std::size_t bytes)
{
    // Room for this run's own lines, which are few so far: they must not push the other run's lines out.
    constexpr std::size_t ownLines = std::size_t{256} << 10;
    std::string text = lastFiles(folder, bytes + ownLines);
    const std::size_t header = text.find(fmt::format(" process {}, program loaded at ", ::getpid()));
    if (header != std::string::npos) {
        const std::size_t line = text.rfind('\n', header);
        text.erase(line == std::string::npos ? 0 : line + 1);
    }
    return wholeLines(std::move(text), bytes);
}

} // namespace lodestar
