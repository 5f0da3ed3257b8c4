// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Feedback/VireoLogger.h"
#include "Fleet/History.h"
#include "Fleet/HistoryKeeper.h"
#include "Tests/Fleet/HandMadeConsole.h"
#include "Tests/Support/ScratchFolder.h"

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace lodestar::test
{

/// A history in a folder of its own, and consoles that are read into it. The clock is that of the readings.
class HistoryFixture : public testing::Test
{
protected:
    HistoryFixture() { restart(); }

    /// As after an end of the process that nobody could prepare for.
    void kill()
    {
        std::filesystem::create_directory(scratch.path() / "kept");
        for (const auto& [name, state] : files()) {
            std::filesystem::copy(folder / name, scratch.path() / "kept" / name);
        }
        keeper.reset();
        std::filesystem::remove_all(folder);
        std::filesystem::rename(scratch.path() / "kept", folder);
        restart();
    }
    void restart()
    {
        if (keeper != nullptr) {
            keeper->close();
        }
        keeper = std::make_unique<HistoryKeeper>();
        keeper->open(folder);
    }
    Difference read(const HandMadeConsole& console)
    {
        const ConsoleSnapshot snapshot = console.snapshot();
        Difference difference = keeper->add(snapshot.address, snapshot.name, *snapshot.reading, snapshot.feeds.get());
        keeper->write();
        return difference;
    }
    /// Reads the console with one system in the state, so much later than before.
    Difference read(HandMadeConsole& console, const std::string& state, std::chrono::seconds later = 5min)
    {
        console.reading.ended += later;
        console.entries.clear();
        console.addSystem("s1", state);
        return read(console);
    }
    std::vector<std::string> states() const
    {
        std::vector<std::string> words;
        for (const Change& change : keeper->changes().changes) {
            words.push_back(change.to);
        }
        return words;
    }

    /// Each file's permissions, time of writing and bytes.
    std::map<std::string, std::string> files() const
    {
        std::map<std::string, std::string> result;
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            const std::string name = entry.path().filename();
            result[name] = std::to_string(modeOf(entry.path())) + " " +
                           std::to_string(entry.last_write_time().time_since_epoch().count()) + " " +
                           scratch.read("Documents/" + name);
        }
        return result;
    }
    std::vector<std::string> filesWith(const std::string& text) const
    {
        std::vector<std::string> names;
        for (const auto& [name, bytes] : files()) {
            if (bytes.find(text) != std::string::npos) {
                names.push_back(name);
            }
        }
        return names;
    }
    void write(const std::string& name, const std::string& bytes) const
    {
        std::ofstream(folder / name, std::ios::binary) << bytes;
    }

    const ScratchFolder scratch;
    const std::filesystem::path folder = scratch.path() / "Documents";
    std::unique_ptr<HistoryKeeper> keeper;
    std::vector<std::string> log;

private:
    const std::shared_ptr<void> m_listening =
        VireoLogger::addListener([this](const VireoLogger::Entry& entry) { log.emplace_back(entry.message); });
};

} // namespace lodestar::test
