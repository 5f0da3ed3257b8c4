// SPDX-License-Identifier: Apache-2.0
#include "Platform/FolderLock.h"

#if defined(__unix__) || defined(__APPLE__)
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#endif

namespace lodestar
{

bool claimFolder([[maybe_unused]] const std::string& folder)
{
#if defined(__unix__) || defined(__APPLE__)
    const int file = ::open((folder + "/Lodestar.lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (file < 0) {
        return true;
    }
    // The system's own lock rather than a file that says who has it: it goes with the process, also when that is
    // killed.
    if (::flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
        ::close(file);
        return false;
    }
    // Open for the rest of the process, since closing it gives the folder back.
#endif
    return true;
}

} // namespace lodestar
