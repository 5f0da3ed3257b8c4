// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

/// What is handed to those who repair something. Labels are in the reader's language; values are a console's, whole,
/// and may hold anything: mark-up, line ends, controls that turn the direction of text.
struct ServiceReport {
    struct Line {
        std::string label; ///< empty for a line that stands alone
        std::string value;

        friend bool operator==(const Line&, const Line&) = default;
    };
    using Block = std::vector<Line>;

    std::string title;
    std::string text; ///< what the console says of it in words; may be empty
    std::vector<Block> blocks;

    friend bool operator==(const ServiceReport&, const ServiceReport&) = default;
};

/// The report with every value as one line without controls, as both texts below show it. A text that runs from right
/// to left is isolated, so that it leaves its neighbours where they are. Pure, like all here; any thread.
ServiceReport inLines(const ServiceReport& report);

/// Puts the mark in place of each network address, in numbers or one of those given, wherever in the report it stands.
ServiceReport withoutAddresses(ServiceReport report, const std::vector<std::string>& known, std::string_view mark);

/// As plain text: a line a value, an empty line between blocks.
std::string plainText(const ServiceReport& report);
/// As Markdown, in which the values read as they are: nothing in them acts as mark-up, link or mention.
std::string markdownText(const ServiceReport& report);

} // namespace lodestar
