// SPDX-License-Identifier: Apache-2.0
#include "Platform/FolderLock.h"

#if defined(__unix__) || defined(__APPLE__)
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace lodestar
{

FolderClaim claimFolder([[maybe_unused]] const std::string& folder)
{
#if defined(__unix__) || defined(__APPLE__)
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
#endif
    return FolderClaim::Ours;
}

} // namespace lodestar
