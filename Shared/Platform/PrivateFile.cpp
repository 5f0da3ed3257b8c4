// SPDX-License-Identifier: Apache-2.0
#include "Platform/PrivateFile.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace lodestar
{

namespace
{

namespace fs = std::filesystem;

Error failure(std::string_view kind, const std::string& path, std::string_view attempt, int code)
{
    const fs::path whole(path);
    const fs::path name = whole.has_filename() ? whole.filename() : whole.parent_path().filename();
    return fileError("The " + std::string(kind) + " " + name.string() + " " + std::string(attempt), code);
}

Result<void> makeFolder(const fs::path& folder)
{
    std::error_code ignored;
    if (folder.empty() || fs::is_directory(folder, ignored)) {
        return {};
    }
    if (Result<void> parent = makeFolder(folder.parent_path()); !parent) {
        return parent;
    }
    if (::mkdir(folder.c_str(), S_IRWXU) == 0) {
        return {};
    }
    const int code = errno;
    if (code == EEXIST && fs::is_directory(folder, ignored)) {
        return {}; // another process made the folder first, or the path ends with a slash
    }
    return failure("folder", folder.string(), "cannot be made", code == EEXIST ? ENOTDIR : code);
}

/// An open file; closed on destruction.
class OpenFile
{
public:
    OpenFile(const std::string& path, int flags) : m_descriptor(::open(path.c_str(), flags, S_IRUSR | S_IWUSR)) {}
    ~OpenFile()
    {
        if (isOpen()) {
            ::close(m_descriptor);
        }
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    bool isOpen() const { return m_descriptor >= 0; }
    int descriptor() const { return m_descriptor; }

private:
    int m_descriptor;
};

} // namespace

Error fileError(std::string_view attempt, int code)
{
    const std::string reason = std::generic_category().message(code);
    return {std::string(fileErrorDomain), code, std::string(attempt) + ": " + reason, reason, nullptr};
}

Result<void> makePrivateFolder(const std::string& path, FolderThere there)
{
    Result<void> made = path.empty() ? Result<void>(fileError("The folder has no name", ENOENT)) : makeFolder(path);
    if (made && there == FolderThere::Tightened && ::chmod(path.c_str(), S_IRWXU) != 0) {
        made = failure("folder", path, "cannot be made private", errno);
    }
    return made;
}

Result<void> writePrivateFile(const std::string& path, std::string_view bytes)
{
    constexpr std::string_view attempt = "cannot be written";
    const OpenFile file(path, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW);
    if (!file.isOpen()) {
        return failure("file", path, attempt, errno);
    }
    // Some disks report that they are full only at `fsync`.
    if (writeFully(file.descriptor(), bytes) < bytes.size() || (::fsync(file.descriptor()) != 0 && errno != EINVAL)) {
        const int code = errno;
        ::unlink(path.c_str());
        return failure("file", path, attempt, code);
    }
    return {};
}

Result<std::string> readPrivateFile(const std::string& path, std::size_t limit, FilePart part)
{
    constexpr std::string_view attempt = "cannot be read";
    const OpenFile file(path, O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
    struct stat status = {};
    if (!file.isOpen() || ::fstat(file.descriptor(), &status) != 0) {
        return failure("file", path, attempt, errno);
    }
    if (!S_ISREG(status.st_mode)) {
        return failure("file", path, attempt, EINVAL);
    }
    const auto size = static_cast<std::size_t>(status.st_size);
    std::string bytes(std::min(limit, size), '\0');
    const std::size_t start = part == FilePart::Start ? 0 : size - bytes.size();
    std::size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t count =
            ::pread(file.descriptor(), bytes.data() + done, bytes.size() - done, static_cast<off_t>(start + done));
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0) {
            return failure("file", path, attempt, errno);
        }
        if (count == 0) {
            break; // the file was cut short while it was read
        }
        done += static_cast<std::size_t>(count);
    }
    bytes.resize(done);
    return bytes;
}

std::size_t writeFully(int descriptor, std::string_view bytes) noexcept
{
    std::size_t written = 0;
    while (written < bytes.size()) {
        const ssize_t count = ::write(descriptor, bytes.data() + written, bytes.size() - written);
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count == 0) {
            errno = ENOSPC;
        }
        if (count <= 0) {
            break;
        }
        written += static_cast<std::size_t>(count);
    }
    return written;
}

void syncFolder(const std::string& path)
{
    if (const OpenFile folder(path, O_RDONLY | O_DIRECTORY | O_CLOEXEC); folder.isOpen()) {
        ::fsync(folder.descriptor());
    }
}

FolderClaim claimFolder(const std::string& folder)
{
    struct stat status = {};
    if (::stat(folder.c_str(), &status) == 0 && status.st_uid != ::geteuid()) {
        return FolderClaim::Foreign;
    }
    const int file = ::open((folder + "/Lodestar.lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (file < 0) {
        return errno == ELOOP ? FolderClaim::NoLock : FolderClaim::Ours;
    }
    if (::fstat(file, &status) != 0 || !S_ISREG(status.st_mode) || status.st_uid != ::geteuid()) {
        ::close(file);
        return FolderClaim::NoLock;
    }
    // The lock is the system's own, not a file that names its owner: the system's lock ends with the process, even when
    // the process is killed.
    if (::flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
        ::close(file);
        return FolderClaim::Taken;
    }
    // The file stays open until the process ends: closing it would release the folder.
    return FolderClaim::Ours;
}

} // namespace lodestar
