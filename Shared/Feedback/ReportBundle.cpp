// SPDX-License-Identifier: Apache-2.0
#include "Feedback/ReportBundle.h"

#include "Feedback/LogText.h"
#include "Platform/PrivateFile.h"

#include <fmt/core.h>

#include <array>
#include <fstream>
#include <sys/utsname.h>

namespace lodestar
{

namespace
{

constexpr std::string_view title = "Lodestar report 1";

struct Fact {
    std::string_view name;
    std::string Report::*value;
};
constexpr std::array<Fact, 4> facts = {{{"Made", &Report::made},
                                        {"Version", &Report::version},
                                        {"System", &Report::system},
                                        {"Session", &Report::session}}};

std::string_view kindName(Report::Kind kind)
{
    return kind == Report::Kind::Crash ? "crash" : "feedback";
}

std::string_view takeLine(std::string_view& text)
{
    const std::size_t end = text.find('\n');
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    return line;
}

/// The value in NAME="value" or NAME=value in the system's description file.
std::string releaseName()
{
    std::ifstream stream("/etc/os-release");
    for (std::string line; std::getline(stream, line);) {
        constexpr std::string_view key = "PRETTY_NAME=";
        if (line.starts_with(key)) {
            line.erase(0, key.size());
            if (line.size() >= 2 && line.front() == '"') {
                line = line.substr(1, line.size() - 2);
            }
            return line;
        }
    }
    return {};
}

} // namespace

std::string reportText(const Report& report)
{
    std::string text = fmt::format("{}\nKind: {}\n", title, kindName(report.kind));
    for (const Fact& fact : facts) {
        text += fmt::format("{}: ", fact.name);
        appendLogText(text, report.*fact.value);
        text += '\n';
    }
    return text + '\n' + report.note;
}

std::optional<Report> parseReportText(std::string_view text)
{
    if (takeLine(text) != title) {
        return std::nullopt;
    }
    Report report;
    for (std::string_view line = takeLine(text); !line.empty(); line = takeLine(text)) {
        const std::size_t colon = line.find(": ");
        if (colon == std::string_view::npos) {
            continue;
        }
        const std::string_view name = line.substr(0, colon);
        const std::string_view value = line.substr(colon + 2);
        if (name == "Kind" && value == kindName(Report::Kind::Crash)) {
            report.kind = Report::Kind::Crash;
        }
        for (const Fact& fact : facts) {
            if (name == fact.name) {
                report.*fact.value = value;
            }
        }
    }
    report.note = text;
    return report;
}

std::vector<ReportFile> reportFiles(const ReportBundle& bundle)
{
    std::vector<ReportFile> files = {{"report.txt", reportText(bundle)}};
    for (const auto& [name, bytes] : {std::pair("log.txt", &bundle.log), std::pair("crash.txt", &bundle.crash),
                                      std::pair("picture.png", &bundle.picture)}) {
        if (!bytes->empty()) {
            files.push_back({name, *bytes});
        }
    }
    return files;
}

std::string sentText(const ReportBundle& bundle)
{
    std::string text;
    for (const ReportFile& file : reportFiles(bundle)) {
        text += text.empty() ? "" : "\n\n";
        if (file.name.ends_with(".png")) {
            text += fmt::format("{}: {} bytes", file.name, file.bytes.size());
        } else {
            text += fmt::format("{}:\n{}", file.name, file.bytes);
        }
    }
    return text;
}

std::string systemDescription()
{
    struct utsname system = {};
    std::string text = releaseName();
    if (::uname(&system) == 0) {
        text += fmt::format("{}{} {}, {}", text.empty() ? "" : ", ", system.sysname, system.release, system.machine);
    }
    return text;
}

Error reportError(std::string_view attempt, int code)
{
    Error error = fileError(attempt, code);
    error.domain = reportErrorDomain;
    return error;
}

} // namespace lodestar
