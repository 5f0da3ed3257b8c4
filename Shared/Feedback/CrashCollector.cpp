// SPDX-License-Identifier: Apache-2.0
#include "Feedback/CrashCollector.h"

#include "Feedback/CrashRecord.h"
#include "Feedback/CrashSymbols.h"
#include "Feedback/LogTail.h"
#include "Feedback/Redaction.h"
#include "Feedback/VireoLogger.h"
#include "Platform/PrivateFile.h"
#include "Platform/UtcStamp.h"

#include <fmt/core.h>

#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <unistd.h>

namespace lodestar
{

namespace
{

constexpr std::string_view ownFile = "Shared/Feedback/CrashCollector";
constexpr std::size_t mostCrashBytes = std::size_t{1} << 20;
constexpr std::size_t logBytes = std::size_t{64} << 10;
/// Suffix of a crash file while its functions are being named.
constexpr std::string_view beingRead = ".reading";

/// Whether the file's run has ended: a live run holds the lock.
bool isAbandoned(const std::string& path)
{
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
    if (descriptor < 0) {
        return false;
    }
    const bool abandoned = ::flock(descriptor, LOCK_EX | LOCK_NB) == 0;
    ::close(descriptor);
    return abandoned;
}

/// The run's log: the lines in the log files and the last lines that were not written any more.
std::string logOf(const CrashRecord& record, const std::string& logFolder)
{
    std::string log = logTailBeforeThisRun(logFolder, logBytes);
    std::string unwritten;
    for (const std::string& line : record.lastLines) {
        // The first kept line may lack its start; it is skipped when it is the end of a line in the log.
        if (log.find(line) == std::string::npos) {
            unwritten += line + "\n";
        }
    }
    return log + unwritten;
}

ReportBundle bundleOf(const CrashRecord& record, const CrashSources& sources, bool named)
{
    ReportBundle bundle;
    bundle.kind = Report::Kind::Crash;
    bundle.made = utcStamp(record.time);
    bundle.version = record.version;
    bundle.system = systemDescription();
    bundle.session = record.session;
    bundle.note = redacted(record.summary(), sources.secrets);
    bundle.crash = redacted(named ? symbolisedText(record) : addressText(record), sources.secrets);
    bundle.log = redacted(logOf(record, sources.logFolder), sources.secrets);
    return bundle;
}

/// Makes a report of the file. False when no report came of it.
bool collect(const std::string& path, const CrashSources& sources, const ReportStore& store)
{
    const Result<std::string> text = readPrivateFile(path, mostCrashBytes);
    const std::optional<CrashRecord> record = text ? parseCrashRecord(text.value()) : std::nullopt;
    if (!record) {
        ::unlink(path.c_str());
        return false;
    }
    const bool failedBefore = path.ends_with(beingRead);
    const std::string reading = failedBefore ? path : path + std::string(beingRead);
    std::rename(path.c_str(), reading.c_str());
    const ReportBundle bundle = bundleOf(*record, sources, !failedBefore);
    const Result<std::string> saved = store.save(bundle);
    if (!saved) {
        LODESTAR_LOG(ownFile, "collectCrashes", "the report of a crash could not be kept: {}",
                     description(saved.error()));
        std::rename(reading.c_str(), path.c_str());
        return false;
    }
    LODESTAR_LOG(ownFile, "collectCrashes", "report {} of a crash: {}", saved.value(), bundle.note);
    ::unlink(reading.c_str());
    return true;
}

std::vector<std::string> abandonedFiles(const std::string& crashFolder)
{
    std::vector<std::string> paths;
    std::error_code failure;
    for (std::filesystem::directory_iterator entry(crashFolder, failure), end; !failure && entry != end;
         entry.increment(failure)) {
        const std::string path = entry->path();
        if (entry->path().filename().string().starts_with("crash-") && isAbandoned(path)) {
            paths.push_back(path);
        }
    }
    return paths;
}

} // namespace

int collectCrashes(const CrashSources& sources, const ReportStore& store)
{
    int reports = 0;
    for (const std::string& path : abandonedFiles(sources.crashFolder)) {
        reports += collect(path, sources, store) ? 1 : 0;
    }
    return reports;
}

void forgetCrashes(const std::string& crashFolder)
{
    for (const std::string& path : abandonedFiles(crashFolder)) {
        ::unlink(path.c_str());
    }
}

} // namespace lodestar
