// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Result.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace lodestar
{

/// Domain of the errors of report files; the codes are those of `errno`.
inline constexpr std::string_view reportErrorDomain = "Feedback";

/// An error of that domain: what was tried, and the system's words for why it failed.
Error reportError(std::string_view attempt, int code);

/// Writes a new file, 0600, and waits until the disk has it. Fails when there is one of that name; what was written of
/// a file that cannot be finished, on a full disk for one, is taken away again.
Result<void> writePrivateFile(const std::string& path, std::string_view bytes);
/// At most `limit` bytes of a regular file, from its start. No link is followed: it would lead out of the folder.
Result<std::string> readPrivateFile(const std::string& path, std::size_t limit);
/// The folder and those above it, the folder itself 0700.
Result<void> makePrivateFolder(const std::string& path);
/// Writes all of it, or says why not.
Result<void> writeFully(int descriptor, std::string_view bytes);

} // namespace lodestar
