// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Feedback/ReportBundle.h"
#include "Platform/Result.h"

#include <cstddef>
#include <string>
#include <vector>

namespace lodestar
{

/// The reports, one folder each (0700, files 0600) in a folder of ours. A report exists whole or not at all: its folder
/// is written under another name and then renamed. As thread-safe as the file system; calls wait for the disk.
class ReportStore
{
public:
    struct Limits {
        std::size_t feedback = 50; ///< reports made by people; when full, a new one is refused
        /// Crash reports; a new one replaces the oldest, so that a crash at every start cannot fill the disk.
        std::size_t crashes = 10;
        std::size_t bytes = std::size_t{32} << 20; ///< one report's bytes
    };

    /// The constructor does not touch the disk.
    explicit ReportStore(std::string folder) : ReportStore(std::move(folder), Limits()) {}
    ReportStore(std::string folder, Limits limits);

    const std::string& folder() const { return m_folder; }

    /// Saves the bundle and returns the report's new identifier; the bundle's own is ignored. A failed save leaves
    /// nothing behind. A crash report then waits for an answer (see `unanswered`), a person's report does not.
    Result<std::string> save(const ReportBundle& bundle) const;
    /// All readable reports, youngest first; damaged ones are left out.
    std::vector<Report> list() const;
    Result<ReportBundle> read(const std::string& identifier) const;
    Result<void> remove(const std::string& identifier) const;
    /// Deletes all reports, damaged ones as well. Returns the last failure, if any.
    Result<void> removeAll() const;

    /// Crash reports that no person has decided about yet, youngest first.
    std::vector<Report> unanswered() const;
    void keep(const std::string& identifier) const;

    /// Writes the report as one ZIP archive, 0600, into a folder chosen for the person; returns the archive's path.
    /// Never replaces a file. An archive that cannot be finished is removed.
    Result<std::string> exportTo(const std::string& identifier, const std::string& folder) const;

    /// Deletes what a run left when it ended in the middle of a save or a removal.
    void sweep() const;

private:
    std::string pathOf(const std::string& identifier) const { return m_folder + "/" + identifier; }
    std::vector<std::string> identifiers() const;
    Result<void> makeRoom(Report::Kind kind) const;

    std::string m_folder;
    Limits m_limits;
};

} // namespace lodestar
