// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/Model/StoreStack.h"
#include "Controllers/REST/RESTHandler.h"
#include "Feedback/VireoLogger.h"
#include "Fleet/History.h"
#include "Fleet/Registry.h"
#include "Platform/Queues/MainQueue.h"
#include "Platform/UserDefaults.h"
#include "Simulator/SimulatorProcess.h"
#include "Tests/Support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <map>
#include <mutex>
#include <string>
#include <vector>

namespace lodestar::faults
{

/// Consoles with feeds of a usual size.
inline simulator::Settings settingsOf(int consoles)
{
    return {.consoles = consoles, .feedBytes = 20'000, .recordCap = 0};
}

/// Simulated consoles, the real client, and a folder with store, history and log. Main thread.
class Drive
{
public:
    /// Consoles at further addresses come after the simulator's own.
    explicit Drive(int consoles, std::vector<std::string> further = {}) : m_simulator(settingsOf(consoles))
    {
        MainQueue::shared().adoptCurrentThread();
        StoreStack::shared().setApplicationDocumentsDirectory(m_folder.file("Documents"));
        // Without its file the history keeps up to 10,000 changes in memory, which would look like a leak.
        History::shared().open(m_folder.file("Documents"));
        VireoLogger::openLogFolder(m_folder.file("Logs"));
        m_listener = VireoLogger::addListener([this](const VireoLogger::Entry& entry) {
            const std::lock_guard lock(m_mutex);
            m_lines.emplace_back(entry.message);
        });
        std::vector<std::string> addresses;
        for (int i = 0; i < consoles; ++i) {
            addresses.push_back(m_simulator.address(i));
        }
        std::ranges::move(further, std::back_inserter(addresses));
        for (const std::string& address : addresses) {
            const CorvelRef corvel = insertNewCorvel();
            corvel->setName("Console " + address);
            corvel->setAddress(address);
            corvel->setUsername(m_simulator.user());
            corvel->setPassword(m_simulator.password());
            corvel->setDemo(false);
            RESTHandler::sharedInstance().addCorvel(corvel);
            m_consoles.push_back(corvel);
        }
        saveIgnoringErrors();
    }
    /// Closes the store and looks whether it is as it should be.
    ~Drive()
    {
        RESTHandler::sharedInstance().queue().waitUntilAllOperationsAreFinished();
        MainQueue::shared().drain();
        saveIgnoringErrors();
        RESTHandler::sharedInstance().setCorvelList({});
        StoreStack::shared().close();
        History::shared().close();
        checkStored();
        m_listener.reset();
        VireoLogger::openLogFolder("/dev/null/nowhere");
        for (const std::string& key : UserDefaults::standard().allKeys()) {
            UserDefaults::standard().removeObjectForKey(key);
        }
    }
    Drive(const Drive&) = delete;
    Drive& operator=(const Drive&) = delete;

    simulator::SimulatorProcess& simulator() { return m_simulator; }
    const std::vector<CorvelRef>& consoles() const { return m_consoles; }

    /// All consoles at once, each with a save at its end, until all have settled: milliseconds for each. Expects
    /// that each settles once, and in the limit.
    std::vector<double> refresh(std::chrono::milliseconds limit = std::chrono::seconds(60))
    {
        struct Settled {
            std::vector<double> times;
            std::vector<int> counts;
        };
        {
            const std::lock_guard lock(m_mutex);
            m_lines.clear();
        }
        const auto settled = std::make_shared<Settled>();
        settled->times.resize(m_consoles.size());
        settled->counts.resize(m_consoles.size());
        const auto start = Clock::now();
        for (std::size_t i = 0; i < m_consoles.size(); ++i) {
            const CorvelRef& corvel = m_consoles[i];
            corvel->setRestData(nullptr);
            const auto note = [settled, start, i, corvel](bool online) {
                corvel->isOnline = online;
                settled->times[i] = std::chrono::duration<double, std::milli>(Clock::now() - start).count();
                ++settled->counts[i];
            };
            fetchInventory(corvel, Urgency::Fleet)
                .thenOnMain(
                    [note, corvel](const std::string&) {
                        finishRefresh(*corvel);
                        note(true);
                    },
                    [note](const Error&) { note(false); });
        }
        const auto all = [&settled] { return std::ranges::count(settled->counts, 0) == 0; };
        EXPECT_TRUE(MainQueue::shared().runUntil(all, limit)) << "a console has not settled";
        MainQueue::shared().drain();
        EXPECT_EQ(std::ranges::count(settled->counts, 1), std::ssize(m_consoles)) << "each settles just once";
        return settled->times;
    }
    /// All text of each of a console's feeds, or "NA".
    std::map<std::string, std::string> feedTexts(std::size_t console) const
    {
        std::map<std::string, std::string> texts;
        for (const auto& [type, schema] : feedTable) {
            const Feed feed = feedOfType(*m_consoles.at(console), type);
            texts.emplace(type, feed.isNA() ? "NA" : feed.root().text().value_or(""));
        }
        return texts;
    }
    /// Lines logged since the last refresh began that hold the text.
    int logged(const std::string& text)
    {
        const std::lock_guard lock(m_mutex);
        return static_cast<int>(std::ranges::count_if(
            m_lines, [&](const std::string& line) { return line.find(text) != std::string::npos; }));
    }

private:
    using Clock = std::chrono::steady_clock;

    /// What a record is, for comparing with what the store gives back.
    static std::string identityOf(const Corvel& corvel)
    {
        return corvel.name().value_or("") + "|" + corvel.address().value_or("") + "|" + corvel.username().value_or("") +
               "|" + corvel.password().value_or("");
    }
    void checkStored() const
    {
        auto context =
            ObjectContext::open(m_folder.file("Documents/Lodestar.sqlite"), StoreStack::managedObjectModel());
        std::vector<std::string> kept;
        if (const auto records = context ? context.value()->fetchAll(Corvel::entityName) : context.error()) {
            for (const auto& record : records.value()) {
                kept.push_back(identityOf(dynamic_cast<const Corvel&>(*record)));
            }
        }
        std::vector<std::string> wanted;
        std::ranges::transform(m_consoles, std::back_inserter(wanted),
                               [](auto& corvel) { return identityOf(*corvel); });
        if (kept != wanted) {
            testing::Test::RecordProperty("lost", "records");
            ADD_FAILURE() << kept.size() << " of " << wanted.size() << " records are stored";
        }
    }

    const ScratchFolder m_folder;
    simulator::SimulatorProcess m_simulator;
    std::vector<CorvelRef> m_consoles;
    std::mutex m_mutex;
    std::vector<std::string> m_lines;
    std::shared_ptr<void> m_listener;
};

} // namespace lodestar::faults
