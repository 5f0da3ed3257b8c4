// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Error.h"

#include <string_view>

namespace lodestar
{

/// Writes the log lines of one screen: level 2, tag 0, with the screen's path and the writing method. A line number is
/// part of a message's identity in the log, so it stays the same even when a file's lines move. Any thread.
class ScreenLog
{
public:
    /// `fileName` is a path without extension whose last part is the class, as in
    /// "Shared/Views/VIOS/VIOSViewController". It must outlive the log.
    constexpr explicit ScreenLog(std::string_view fileName) : m_fileName(fileName) {}

    constexpr std::string_view className() const { return m_fileName.substr(m_fileName.rfind('/') + 1); }

    /// `selector` includes its colons, as in "parseTimeStampFromXML:".
    void write(int line, std::string_view selector, std::string_view message) const;
    /// Writes "Error: … - > …" with the error and the method that started the work.
    void writeError(int line, std::string_view selector, const Error& error) const;

private:
    std::string_view m_fileName;
};

} // namespace lodestar
