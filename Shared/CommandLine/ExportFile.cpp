// SPDX-License-Identifier: Apache-2.0
#include "CommandLine/ExportFile.h"

#include "CommandLine/Failure.h"
#include "CommandLine/Texts.h"
#include "Platform/PrivateFile.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace lodestar
{
namespace
{

using Texts::say;

constexpr std::string_view wildcard = "XXXXXX"; // as `mkostemp` wants it

/// A new file beside the one to be, under a name that no collector reads and that no other process has. Its lock says
/// that somebody writes it: without one its writer was killed. One thread.
class FreshFile
{
public:
    explicit FreshFile(const std::filesystem::path& target)
        : m_folder(target.has_parent_path() ? target.parent_path() : std::filesystem::path(".")),
          m_beginning("." + target.filename().string() + ".lodestar-")
    {
    }
    ~FreshFile()
    {
        if (m_descriptor >= 0) {
            std::remove(m_path.c_str());
            ::close(m_descriptor);
        }
    }
    FreshFile(const FreshFile&) = delete;
    FreshFile& operator=(const FreshFile&) = delete;

    const std::string& folder() const { return m_folder.native(); }
    /// Removes those that were left of the same file.
    void removeLeftOnes() const
    {
        std::error_code error;
        for (std::filesystem::directory_iterator each(m_folder, error), end; !error && each != end;
             each.increment(error)) {
            if (isOne(each->path().filename().native())) {
                removeIfLeft(each->path().native());
            }
        }
    }
    /// The error of the system, or 0.
    int write(std::string_view text)
    {
        if (const int error = make(); error != 0) {
            return error;
        }
        constexpr mode_t readable = S_IRUSR | S_IWUSR | S_IRGRP | S_IROTH;
        errno = 0;
        // Some disks report that they are full only at `fsync`.
        const bool isWhole = writeFully(m_descriptor, text) == text.size() && ::fchmod(m_descriptor, readable) == 0 &&
                             ::fsync(m_descriptor) == 0;
        return isWhole ? 0 : errno;
    }
    int renameTo(const std::string& path)
    {
        if (std::rename(m_path.c_str(), path.c_str()) != 0) {
            return errno;
        }
        ::close(std::exchange(m_descriptor, -1));
        return 0;
    }

private:
    bool isOne(std::string_view name) const
    {
        return name.starts_with(m_beginning) && name.size() == m_beginning.size() + wildcard.size() &&
               std::ranges::all_of(name.substr(m_beginning.size()),
                                   [](unsigned char letter) { return std::isalnum(letter) != 0; });
    }
    static void removeIfLeft(const std::string& path)
    {
        const int file = ::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
        struct stat status = {};
        if (file >= 0 && ::fstat(file, &status) == 0 && S_ISREG(status.st_mode) && status.st_uid == ::geteuid() &&
            ::flock(file, LOCK_EX | LOCK_NB) == 0) {
            std::remove(path.c_str());
        }
        if (file >= 0) {
            ::close(file);
        }
    }
    int make()
    {
        // Another process may take it for a left one before it is locked.
        for (struct stat status = {}; status.st_nlink == 0;) {
            if (m_descriptor >= 0) {
                ::close(m_descriptor);
            }
            m_path = (m_folder / (m_beginning + std::string(wildcard))).string();
            m_descriptor = ::mkostemp(m_path.data(), O_CLOEXEC);
            if (m_descriptor < 0) {
                return errno;
            }
            // Where a disk knows no locks, nobody takes it for a left one either.
            ::flock(m_descriptor, LOCK_EX);
            if (::fstat(m_descriptor, &status) != 0) {
                return errno;
            }
        }
        return 0;
    }

    const std::filesystem::path m_folder;
    const std::string m_beginning;
    std::string m_path;
    int m_descriptor = -1;
};

} // namespace

Result<void> replaceFile(const std::string& path, std::string_view text)
{
    struct stat status = {};
    if (::lstat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode)) {
        return failure(say(TEXT("CommandLine", "%1 is no file that could be replaced."), {path}));
    }
    FreshFile fresh{std::filesystem::path(path)};
    fresh.removeLeftOnes();
    int error = fresh.write(text);
    if (error == 0) {
        error = fresh.renameTo(path);
    }
    if (error != 0) {
        return failure(shownDescription(fileError(say(TEXT("CommandLine", "%1 cannot be written"), {path}), error)));
    }
    syncFolder(fresh.folder());
    return {};
}

} // namespace lodestar
