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

/// What a list of reports shows of one.
struct Report {
    enum class Kind { Feedback, Crash };

    std::string identifier; ///< the name of its folder: letters, digits, hyphens
    Kind kind = Kind::Feedback;
    std::string made;    ///< as `utcStamp` has it
    std::string version; ///< of the application
    std::string system;  ///< operating system and processor; never the device's name
    std::string session; ///< of the run that it tells about
    std::string note;    ///< the person's own words, or what a crash was, UTF-8
};

/// All of a report, as it lies in its folder. What is empty has no file there.
struct ReportBundle : Report {
    std::string log;     ///< the last lines of the log
    std::string crash;   ///< the threads' calls at a crash, as text
    std::string picture; ///< PNG
};

/// A file of a bundle: its name there and what is in it.
struct ReportFile {
    std::string name;
    std::string bytes;
};

/// The bundle's files, report.txt first.
std::vector<ReportFile> reportFiles(const ReportBundle& bundle);
/// What a person reads before the report is sent: every byte of it that is text, under the names of the files, and the
/// size of the picture.
std::string sentText(const ReportBundle& bundle);

/// report.txt: a line for each fact, an empty line, the note. Whatever stands in a fact keeps to its line.
std::string reportText(const Report& report);
/// The reverse; empty for a text that is none. The identifier is not in it.
std::optional<Report> parseReportText(std::string_view text);

/// The operating system's name, kernel and processor. The device's own name is left out: it often is a person's.
std::string systemDescription();

/// Domain of the errors of reports. Those of the disk have the codes of `errno`.
inline constexpr std::string_view reportErrorDomain = "Feedback";
/// An error of that domain: what was tried, and the system's words for why it failed.
Error reportError(std::string_view attempt, int code);

} // namespace lodestar
