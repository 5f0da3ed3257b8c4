// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace lodestar
{

/// Type and description of the exception that ends the process, for the log and the crash file. Secrets are removed
/// from the description, since both files may be read long before a report is made of them. For a terminate handler;
/// any thread.
///
/// A separate thread fetches the secrets, for one second at most: nothing has been unwound, so the calling thread may
/// hold a lock that the secrets need. Without an answer the description is left out.
std::string exceptionText(const std::function<std::vector<std::string>()>& secrets);

} // namespace lodestar
