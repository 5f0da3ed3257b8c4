// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace lodestar
{

/// Type and words of the exception that ends the process, for the log and the crash file: the words without the
/// secrets, since both files may be read long before a report is made of them. In a terminate handler, any thread.
///
/// The secrets are asked for on a thread of their own, for no longer than a second: nothing has been unwound, so that
/// the calling thread may hold the very lock that the answer needs. Without an answer the words are left out.
std::string exceptionText(const std::function<std::vector<std::string>()>& secrets);

} // namespace lodestar
