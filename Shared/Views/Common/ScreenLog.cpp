// SPDX-License-Identifier: Apache-2.0
#include "Views/Common/ScreenLog.h"

#include "Feedback/VireoLogger.h"

#include <fmt/format.h>

namespace lodestar
{

void ScreenLog::write(int line, std::string_view selector, std::string_view message) const
{
    VireoLogger::logWithLevel(2, 0, line, m_fileName, fmt::format("-[{} {}]", className(), selector),
                              callStackReturnAddresses(), "{}", message);
}

void ScreenLog::writeError(int line, std::string_view selector, const Error& error) const
{
    write(line, selector, fmt::format("Error: {} - > {}", description(error), selector));
}

} // namespace lodestar
