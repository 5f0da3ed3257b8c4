// SPDX-License-Identifier: Apache-2.0
#include "CommandLine/ExportFile.h"

#include "CommandLine/Failure.h"
#include "Platform/PrivateFile.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace lodestar
{
namespace
{

/// Writes a new file beside the one to be, under a name that no collector reads and that no other process has. The
/// error of the system, or 0.
int writeBeside(std::string& name, std::string_view text)
{
    const int file = ::mkostemp(name.data(), O_CLOEXEC);
    if (file < 0) {
        const int error = errno;
        name.clear();
        return error;
    }
    constexpr mode_t readable = S_IRUSR | S_IWUSR | S_IRGRP | S_IROTH;
    errno = 0;
    // Some disks report that they are full only at `fsync`.
    const bool isWhole = writeFully(file, text) == text.size() && ::fchmod(file, readable) == 0 && ::fsync(file) == 0;
    const int error = isWhole ? 0 : errno;
    ::close(file);
    return error;
}

} // namespace

Result<void> replaceFile(const std::string& path, std::string_view text)
{
    struct stat status = {};
    if (::lstat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode)) {
        return failure(path + " is no file that could be replaced.");
    }
    const std::filesystem::path target(path);
    const std::string folder = target.has_parent_path() ? target.parent_path().string() : ".";
    std::string fresh = folder + "/." + target.filename().string() + ".XXXXXX";
    int error = writeBeside(fresh, text);
    if (error == 0 && std::rename(fresh.c_str(), path.c_str()) != 0) {
        error = errno;
    }
    if (error != 0) {
        std::remove(fresh.c_str());
        return failure(shownDescription(fileError(path + " cannot be written", error)));
    }
    syncFolder(folder);
    return {};
}

} // namespace lodestar
