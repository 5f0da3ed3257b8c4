// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Error.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

/// The facts of a report that lists show.
struct Report {
    enum class Kind { Feedback, Crash };

    std::string identifier; ///< the report's folder name: letters, digits, hyphens
    Kind kind = Kind::Feedback;
    std::string made;    ///< in the form of `utcStamp`
    std::string version; ///< the application's version
    std::string system;  ///< operating system and processor; never the device's name
    std::string session; ///< the run that the report is about
    std::string note;    ///< the person's own words, or a summary of the crash; UTF-8
};

/// A whole report, as stored in its folder. An empty member has no file there.
struct ReportBundle : Report {
    std::string log;     ///< the last lines of the log
    std::string crash;   ///< the calls at the crash, as text
    std::string picture; ///< PNG
};

/// A file of a bundle: its name and its contents.
struct ReportFile {
    std::string name;
    std::string bytes;
};

/// The bundle's files, report.txt first.
std::vector<ReportFile> reportFiles(const ReportBundle& bundle);
/// The text that a person reads before the report is sent: every byte of text in the report, under the names of its
/// files, and the size of the picture.
std::string sentText(const ReportBundle& bundle);

/// report.txt: a line for each fact, an empty line, the note. Each fact is kept to its own line.
std::string reportText(const Report& report);
/// Reads report.txt back; none when the text is no report. The identifier is not in the text.
std::optional<Report> parseReportText(std::string_view text);

/// The operating system's name, kernel and processor. The device's name is left out, since it is often a person's name.
std::string systemDescription();

/// Domain of report errors. For errors of the disk the codes are those of `errno`.
inline constexpr std::string_view reportErrorDomain = "Feedback";
/// An error of that domain: the attempt, and the system's words for why it failed.
Error reportError(std::string_view attempt, int code);

} // namespace lodestar
