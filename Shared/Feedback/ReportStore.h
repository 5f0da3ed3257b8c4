// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Feedback/ReportBundle.h"
#include "Platform/Result.h"

#include <cstddef>
#include <string>
#include <vector>

namespace lodestar
{

/// The reports, one folder each (0700, files 0600) in a folder of ours. A report is there whole or not at all: it is
/// written under another name and renamed. Thread-safe, as the file system is; calls wait for the disk.
class ReportStore
{
public:
    struct Limits {
        std::size_t feedback = 50; ///< reports by people; one more is refused, never one of theirs dropped
        std::size_t crashes = 10;  ///< the oldest goes for a new one, so that a crash at every start fills no disk
        std::size_t bytes = std::size_t{32} << 20; ///< of one report
    };

    /// Nothing is touched until the first call.
    explicit ReportStore(std::string folder) : ReportStore(std::move(folder), Limits()) {}
    ReportStore(std::string folder, Limits limits);

    const std::string& folder() const { return m_folder; }

    /// Keeps the bundle and returns the identifier that it got; the given one does not count. When that fails nothing
    /// of it is left behind. A crash report waits for an answer (see `unanswered`), a person's own does not.
    Result<std::string> save(const ReportBundle& bundle) const;
    /// Youngest first; what is damaged is left out.
    std::vector<Report> list() const;
    Result<ReportBundle> read(const std::string& identifier) const;
    Result<void> remove(const std::string& identifier) const;
    /// Everything, damaged reports as well; the last failure of several.
    Result<void> removeAll() const;

    /// Crash reports that nobody has yet said to keep, youngest first.
    std::vector<Report> unanswered() const;
    void keep(const std::string& identifier) const;

    /// Writes the report as one ZIP archive, 0600, into a folder of the person's and returns its path. No file that is
    /// there already is replaced, and none that cannot be finished is left.
    Result<std::string> exportTo(const std::string& identifier, const std::string& folder) const;

    /// Takes away what a run that ended in the middle of a save or a removal left.
    void sweep() const;

private:
    std::string pathOf(const std::string& identifier) const { return m_folder + "/" + identifier; }
    std::vector<std::string> identifiers() const;
    Result<void> makeRoom(Report::Kind kind) const;

    std::string m_folder;
    Limits m_limits;
};

} // namespace lodestar
