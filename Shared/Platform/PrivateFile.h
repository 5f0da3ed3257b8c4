// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Result.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace lodestar
{
/// @file
/// Files and folders for this user only: files 0600, folders 0700. No state: any thread may call, and each call waits
/// for the disk. Error texts name a file without its folders: a folder's name may be a person's name, and the text may
/// end up in a log.

/// Domain of the errors below; the codes are those of `errno`.
inline constexpr std::string_view fileErrorDomain = "File";

/// An error of that domain: the attempt, and the system's words for why it failed.
Error fileError(std::string_view attempt, int code);

enum class FolderThere {
    Left, ///< keeps its mode: others may share it
    /// Gets mode 0700: the folder is ours; when its mode cannot be changed, the call fails and the folder stays.
    Tightened
};
/// Makes the folder and every missing folder above it, each new one 0700. Fails for the empty path, and when something
/// other than a folder has one of the names.
Result<void> makePrivateFolder(const std::string& path, FolderThere there = FolderThere::Left);

/// Writes a new file, 0600, and waits until the bytes are on the disk. An empty text makes an empty file. Fails with
/// `EEXIST`, changing nothing, when anything has that name. A file that cannot be finished, for instance on a full
/// disk, is removed again.
Result<void> writePrivateFile(const std::string& path, std::string_view bytes);

enum class FilePart { Start, End };
/// Reads at most `limit` bytes of a regular file, from its start or up to its end. Empty only for an empty file: a
/// missing or unreadable file is an error. Follows no link, since a link could lead out of the folder, and waits for no
/// pipe.
Result<std::string> readPrivateFile(const std::string& path, std::size_t limit, FilePart part = FilePart::Start);

/// Writes all bytes at the descriptor's current position. Returns the number of bytes written; when that is fewer than
/// all, `errno` says why. Safe in a signal handler.
std::size_t writeFully(int descriptor, std::string_view bytes) noexcept;

/// Waits until the folder's list of names is on the disk. Where a disk cannot do that for folders, nothing is waited
/// for.
void syncFolder(const std::string& path);

enum class FolderClaim {
    Ours,
    Taken,   ///< another process has the folder; two processes would overwrite each other's defaults
    Foreign, ///< the folder belongs to another user, who could read and change its files
    /// A link, or a file that is not this user's, has the lock file's name; locking it would lock something else.
    NoLock
};

/// Claims a folder for this process. The claim lasts until the process ends, however it ends. The answer is `Ours`,
/// too, for a folder that does not exist and for one in which no lock file can be made.
FolderClaim claimFolder(const std::string& folder);

} // namespace lodestar
