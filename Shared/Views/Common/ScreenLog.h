// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Error.h"

#include <string_view>

namespace lodestar
{

/// The log lines of one screen: level 2, tag 0, under the screen's path and the method that writes them. Line numbers
/// are part of a message's identity in a log: they stay what they are, whatever becomes of a file's lines. Any thread.
class ScreenLog
{
public:
    /// A path without extension whose last part is the class, as in "Shared/Views/VIOS/VIOSViewController". It outlives
    /// the log.
    constexpr explicit ScreenLog(std::string_view fileName) : m_fileName(fileName) {}

    constexpr std::string_view className() const { return m_fileName.substr(m_fileName.rfind('/') + 1); }

    /// `selector` with its colons, as in "parseTimeStampFromXML:".
    void write(int line, std::string_view selector, std::string_view message) const;
    /// "Error: … - > …" with the error and the method that started the work.
    void writeError(int line, std::string_view selector, const Error& error) const;

private:
    std::string_view m_fileName;
};

} // namespace lodestar
