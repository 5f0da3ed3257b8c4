// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace lodestar
{

enum class Ink { None, Good, Warning, Error };

/// What a descriptor leads to. A value.
struct Terminal {
    bool isTerminal = false;
    bool hasColor = false; ///< only on a terminal, and only where NO_COLOR is not set
    std::size_t width = 0; ///< columns; 0 where nothing limits them

    static Terminal of(int descriptor);
    std::string inked(std::string_view text, Ink ink) const;
};

/// One line on standard error, "lodestar-cli: ...", made plain.
void complain(std::string_view sentence);

/// A line on standard error that a later one replaces, such as "reading 3 of 6". Nothing unless that is a terminal.
class ProgressLine
{
public:
    ProgressLine();
    ~ProgressLine() { clear(); }
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    void show(std::string_view text);
    void clear();

private:
    const Terminal m_terminal;
    std::string m_shown;
};

} // namespace lodestar
