// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Result.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace lodestar
{

/// Files and folders that are nobody else's: files 0600, folders 0700. Free of state: any thread may call, each call
/// waits for the disk. Texts name a file without its folders, which may bear a person's name and end up in a log.

/// Domain of the errors below; the codes are those of `errno`.
inline constexpr std::string_view fileErrorDomain = "File";

/// An error of that domain: what was tried, and the system's words for why it failed.
Error fileError(std::string_view attempt, int code);

enum class FolderThere {
    Left,     ///< as it is: it may be one that others share
    Tightened ///< to 0700: it is one of ours; fails when that cannot be done, with the folder there
};
/// Makes the folder and what is missing above it, every new one 0700. Fails when something other than a folder has
/// one of the names, and for the empty path.
Result<void> makePrivateFolder(const std::string& path, FolderThere there = FolderThere::Left);

/// Writes a new file, 0600, and waits until the disk has it; an empty text makes an empty file. Fails, with `EEXIST`,
/// when there is anything of that name, and leaves it alone. What was written of a file that cannot be finished, on a
/// full disk for one, is taken away again.
Result<void> writePrivateFile(const std::string& path, std::string_view bytes);

enum class FilePart { Start, End };
/// At most `limit` bytes of a regular file, from its start or up to its end. Empty for an empty file, never for one
/// that is not there or cannot be read: that is an error. No link is followed, since it would lead out of the folder,
/// and no pipe is waited for.
Result<std::string> readPrivateFile(const std::string& path, std::size_t limit, FilePart part = FilePart::Start);

/// Writes all of it at the descriptor's place and returns how many bytes that were; after fewer than all, `errno` says
/// why. Safe in a signal handler.
std::size_t writeFully(int descriptor, std::string_view bytes) noexcept;

/// Waits until the disk knows the names in the folder. Disks that cannot do that for folders are taken as they are.
void syncFolder(const std::string& path);

} // namespace lodestar
