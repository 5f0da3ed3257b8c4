// SPDX-License-Identifier: Apache-2.0
#include "Feedback/PrivateFile.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace lodestar
{

Error reportError(std::string_view attempt, int code)
{
    const std::string reason = std::generic_category().message(code);
    return {std::string(reportErrorDomain), code, std::string(attempt) + ": " + reason, reason, nullptr};
}

Result<void> writeFully(int descriptor, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t count = ::write(descriptor, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count <= 0) {
            return reportError("The report cannot be written", count < 0 ? errno : ENOSPC);
        }
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return {};
}

Result<void> writePrivateFile(const std::string& path, std::string_view bytes)
{
    const int descriptor =
        ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR);
    if (descriptor < 0) {
        return reportError("The report cannot be written", errno);
    }
    Result<void> written = writeFully(descriptor, bytes);
    // Some disks tell that they are full no earlier than here.
    if (written && ::fsync(descriptor) != 0 && errno != EINVAL) {
        written = reportError("The report cannot be written", errno);
    }
    ::close(descriptor);
    if (!written) {
        ::unlink(path.c_str());
    }
    return written;
}

Result<std::string> readPrivateFile(const std::string& path, std::size_t limit)
{
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
    struct stat status = {};
    if (descriptor < 0 || ::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
        const int code = descriptor < 0 ? errno : EINVAL;
        if (descriptor >= 0) {
            ::close(descriptor);
        }
        return reportError("The report cannot be read", code);
    }
    std::string bytes(std::min(limit, static_cast<std::size_t>(status.st_size)), '\0');
    std::size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t count = ::read(descriptor, bytes.data() + done, bytes.size() - done);
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0) {
            const int code = errno;
            ::close(descriptor);
            return reportError("The report cannot be read", code);
        }
        if (count == 0) {
            break;
        }
        done += static_cast<std::size_t>(count);
    }
    ::close(descriptor);
    bytes.resize(done);
    return bytes;
}

Result<void> makePrivateFolder(const std::string& path)
{
    std::error_code failure;
    std::filesystem::create_directories(path, failure);
    if (!failure && ::chmod(path.c_str(), S_IRWXU) != 0) {
        failure = std::error_code(errno, std::generic_category());
    }
    return failure ? Result<void>(reportError("The folder of the reports cannot be made", failure.value()))
                   : Result<void>();
}

} // namespace lodestar
