// SPDX-License-Identifier: Apache-2.0
#include "Feedback/ReportStore.h"

#include "Feedback/ReportArchive.h"
#include "Platform/PrivateFile.h"
#include "Platform/UtcStamp.h"

#include <fmt/core.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <functional>
#include <random>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace lodestar
{

namespace
{

namespace fs = std::filesystem;

constexpr const char* unansweredMark = "unanswered";
/// Prefix of folders that are being made or deleted; the process and the identifier follow.
constexpr std::string_view unfinished = ".unfinished-";

bool isIdentifier(std::string_view name)
{
    return !name.empty() && name.size() <= 64 && std::all_of(name.begin(), name.end(), [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '-';
    });
}

/// The time to the second, so that names sort by age, and a random part that tells apart reports of the same second.
std::string newIdentifier(const std::string& made)
{
    std::string time = made;
    std::erase_if(time, [](char c) { return c < '0' || c > '9'; });
    return fmt::format("{}-{:08x}", time.substr(0, 14), std::random_device()());
}

Result<void> writeFiles(const std::string& folder, const std::vector<ReportFile>& files)
{
    if (::mkdir(folder.c_str(), S_IRWXU) != 0) {
        return reportError("The report cannot be written", errno);
    }
    for (const ReportFile& file : files) {
        if (Result<void> written = writePrivateFile(folder + "/" + file.name, file.bytes); !written) {
            return written;
        }
    }
    return {};
}

std::string readIfThere(const std::string& path, std::size_t limit)
{
    Result<std::string> bytes = readPrivateFile(path, limit);
    return bytes ? std::move(bytes).value() : std::string();
}

} // namespace

ReportStore::ReportStore(std::string folder, Limits limits) : m_folder(std::move(folder)), m_limits(limits) {}

std::vector<std::string> ReportStore::identifiers() const
{
    std::vector<std::string> found;
    std::error_code failure;
    for (fs::directory_iterator entry(m_folder, failure), end; !failure && entry != end; entry.increment(failure)) {
        const std::string name = entry->path().filename();
        std::error_code ignored;
        if (isIdentifier(name) && entry->symlink_status(ignored).type() == fs::file_type::directory) {
            found.push_back(name);
        }
    }
    std::sort(found.begin(), found.end(), std::greater<>());
    return found;
}

Result<void> ReportStore::makeRoom(Report::Kind kind) const
{
    std::vector<Report> reports = list();
    std::erase_if(reports, [kind](const Report& report) { return report.kind != kind; });
    if (kind == Report::Kind::Feedback) {
        return reports.size() < m_limits.feedback
                   ? Result<void>()
                   : Result<void>(Error{std::string(reportErrorDomain), EDQUOT,
                                        "There are too many reports. Delete one first.", "too many reports", nullptr});
    }
    for (; reports.size() >= m_limits.crashes && !reports.empty(); reports.pop_back()) {
        if (Result<void> removed = remove(reports.back().identifier); !removed) {
            return removed;
        }
    }
    return {};
}

Result<std::string> ReportStore::save(const ReportBundle& bundle) const
{
    std::vector<ReportFile> files = reportFiles(bundle);
    std::size_t bytes = 0;
    for (const ReportFile& file : files) {
        bytes += file.bytes.size();
    }
    if (bytes > m_limits.bytes) {
        return reportError("The report is too large", EFBIG);
    }
    if (bundle.kind == Report::Kind::Crash) {
        files.push_back({unansweredMark, {}});
    }
    Result<void> done = makePrivateFolder(m_folder, FolderThere::Tightened);
    if (done) {
        done = makeRoom(bundle.kind);
    }
    const std::string identifier = newIdentifier(bundle.made.empty() ? utcStamp(std::time(nullptr)) : bundle.made);
    const std::string temporary =
        m_folder + "/" + std::string(unfinished) + fmt::format("{}-", ::getpid()) + identifier;
    if (done) {
        done = writeFiles(temporary, files);
        if (done && std::rename(temporary.c_str(), pathOf(identifier).c_str()) != 0) {
            done = reportError("The report cannot be written", errno);
        }
    }
    if (!done) {
        std::error_code ignored;
        fs::remove_all(temporary, ignored);
        return done.error();
    }
    syncFolder(m_folder);
    return identifier;
}

std::vector<Report> ReportStore::list() const
{
    std::vector<Report> reports;
    for (const std::string& identifier : identifiers()) {
        const Result<std::string> text = readPrivateFile(pathOf(identifier) + "/report.txt", m_limits.bytes);
        std::optional<Report> report = text ? parseReportText(text.value()) : std::nullopt;
        if (report) {
            report->identifier = identifier;
            reports.push_back(std::move(*report));
        }
    }
    return reports;
}

Result<ReportBundle> ReportStore::read(const std::string& identifier) const
{
    if (!isIdentifier(identifier)) {
        return reportError("The report cannot be read", ENOENT);
    }
    const std::string folder = pathOf(identifier);
    const Result<std::string> text = readPrivateFile(folder + "/report.txt", m_limits.bytes);
    if (!text) {
        return text.error();
    }
    std::optional<Report> report = parseReportText(text.value());
    if (!report) {
        return reportError("The report cannot be read", EINVAL);
    }
    ReportBundle bundle;
    static_cast<Report&>(bundle) = std::move(*report);
    bundle.identifier = identifier;
    bundle.log = readIfThere(folder + "/log.txt", m_limits.bytes);
    bundle.crash = readIfThere(folder + "/crash.txt", m_limits.bytes);
    bundle.picture = readIfThere(folder + "/picture.png", m_limits.bytes);
    return bundle;
}

Result<void> ReportStore::remove(const std::string& identifier) const
{
    if (!isIdentifier(identifier)) {
        return reportError("The report cannot be deleted", ENOENT);
    }
    // Renamed first, so that a half-deleted report is never listed.
    const std::string leaving = m_folder + "/" + std::string(unfinished) + fmt::format("{}-", ::getpid()) + identifier;
    if (std::rename(pathOf(identifier).c_str(), leaving.c_str()) != 0) {
        return reportError("The report cannot be deleted", errno);
    }
    std::error_code failure;
    fs::remove_all(leaving, failure);
    return failure ? Result<void>(reportError("The report cannot be deleted", failure.value())) : Result<void>();
}

Result<void> ReportStore::removeAll() const
{
    Result<void> done;
    for (const std::string& identifier : identifiers()) {
        if (Result<void> removed = remove(identifier); !removed) {
            done = std::move(removed);
        }
    }
    sweep();
    return done;
}

std::vector<Report> ReportStore::unanswered() const
{
    std::vector<Report> reports = list();
    std::erase_if(reports, [this](const Report& report) {
        return ::access((pathOf(report.identifier) + "/" + unansweredMark).c_str(), F_OK) != 0;
    });
    return reports;
}

void ReportStore::keep(const std::string& identifier) const
{
    if (isIdentifier(identifier)) {
        ::unlink((pathOf(identifier) + "/" + unansweredMark).c_str());
    }
}

Result<std::string> ReportStore::exportTo(const std::string& identifier, const std::string& folder) const
{
    const Result<ReportBundle> bundle = read(identifier);
    if (!bundle) {
        return bundle.error();
    }
    const std::string name = "lodestar-report-" + identifier;
    const std::string archive = zipArchive(name, reportFiles(bundle.value()));
    std::error_code ignored;
    fs::create_directories(folder, ignored);
    constexpr int mostCopies = 100;
    for (int copy = 1; copy <= mostCopies; ++copy) {
        const std::string path = fmt::format("{}/{}{}.zip", folder, name, copy == 1 ? "" : fmt::format("-{}", copy));
        const Result<void> written = writePrivateFile(path, archive);
        if (written) {
            return path;
        }
        if (written.error().code != EEXIST) {
            return written.error();
        }
    }
    return reportError("The report cannot be written", EEXIST);
}

void ReportStore::sweep() const
{
    std::error_code failure;
    std::vector<fs::path> leftovers;
    for (fs::directory_iterator entry(m_folder, failure), end; !failure && entry != end; entry.increment(failure)) {
        const std::string name = entry->path().filename();
        if (name.starts_with(unfinished)) {
            const int process = std::atoi(name.c_str() + unfinished.size());
            // A folder of a live process stays: another instance of the program may be working on it.
            if (process <= 0 || (process != ::getpid() && ::kill(process, 0) != 0 && errno == ESRCH)) {
                leftovers.push_back(entry->path());
            }
        }
    }
    for (const fs::path& path : leftovers) {
        fs::remove_all(path, failure);
    }
}

} // namespace lodestar
