// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/Model/StoreStack.h"
#include "Controllers/REST/RESTHandler.h"
#include "Feedback/VireoLogger.h"
#include "Platform/Queues/MainQueue.h"
#include "Platform/URLLoading/ServerTrust.h"
#include "Platform/UserDefaults.h"
#include "Simulator/SimulatorProcess.h"
#include "Tests/Support/ScratchFolder.h"

#include <gmock/gmock.h>

#include <chrono>
#include <mutex>
#include <vector>

namespace lodestar::test
{

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

/// The console client on a store in a scratch folder that holds one console, with its log lines collected and nothing
/// remembered.
class ConsoleTest : public testing::Test
{
protected:
    void SetUp() override
    {
        MainQueue::shared().adoptCurrentThread();
        StoreStack::shared().setApplicationDocumentsDirectory(m_folder.path());
        handler().setCorvelList({});
        for (const std::string& key : defaults().allKeys()) {
            defaults().removeObjectForKey(key);
        }
        ServerTrust::shared().forgetAll();
        m_listener = VireoLogger::addListener([this](const VireoLogger::Entry& entry) {
            const std::lock_guard lock(m_linesMutex);
            m_lines.emplace_back(entry.message);
            m_sources.push_back((entry.stacktrace.empty() ? "without a stack " : "") + std::to_string(entry.level) +
                                " " + std::to_string(entry.tag) + " " + std::string(entry.fileName) + " " +
                                std::string(entry.method) + ":" + std::to_string(entry.line));
        });
        corvel = corvelOf(simulator);
    }
    void TearDown() override
    {
        handler().queue().waitUntilAllOperationsAreFinished();
        MainQueue::shared().drain();
        m_listener.reset();
        handler().setCorvelList({});
        StoreStack::shared().close();
    }

    static RESTHandler& handler() { return RESTHandler::sharedInstance(); }
    static UserDefaults& defaults() { return UserDefaults::standard(); }
    static ObjectContext& context() { return StoreStack::shared().managedObjectContext(); }

    static CorvelRef makeCorvel(const std::string& name, const std::string& address)
    {
        auto corvel = std::dynamic_pointer_cast<Corvel>(context().insertNewObject(Corvel::entityName));
        corvel->setName(name);
        corvel->setAddress(address);
        corvel->setDemo(false);
        return corvel;
    }
    static CorvelRef corvelOf(const simulator::SimulatorProcess& simulator, int console = 0)
    {
        CorvelRef corvel = makeCorvel("Console " + std::to_string(console), simulator.address(console));
        corvel->setUsername(simulator.user());
        corvel->setPassword(simulator.password());
        return corvel;
    }

    /// Runs the main queue until the promise has settled.
    template <typename T>
    static Result<T> settled(const RXPromise<T>& promise)
    {
        if (!MainQueue::shared().runUntil([&promise] { return !promise.isPending(); }, std::chrono::seconds(60))) {
            return Error{"test", 0, "the promise was never settled", {}, nullptr};
        }
        return *promise.result();
    }
    /// The session key of a logon that must not fail.
    static SessionKey key(const CorvelRef& corvel, CheckToken checkToken = CheckToken::Yes)
    {
        const Result<SessionKey> result = settled(handler().login(corvel, checkToken, Urgency::Fleet));
        EXPECT_TRUE(result.ok()) << description(result.error());
        return result.ok() ? result.value() : std::nullopt;
    }
    /// As the refresh of a fleet asks for them.
    static std::shared_ptr<const FeedDictionary> allFeeds(const CorvelRef& corvel, const SessionKey& sessionKey)
    {
        const auto result = settled(handler().fetchAllDataForCorvel(corvel, sessionKey, Urgency::Fleet));
        EXPECT_TRUE(result.ok());
        return result.ok() ? result.value() : std::make_shared<const FeedDictionary>();
    }

    /// The log lines since the last call.
    std::vector<std::string> takeLines()
    {
        const std::lock_guard lock(m_linesMutex);
        m_sources.clear();
        return std::exchange(m_lines, {});
    }
    /// Level, tag, file, method and number of the same lines.
    std::vector<std::string> lineSources()
    {
        const std::lock_guard lock(m_linesMutex);
        return m_sources;
    }

    simulator::SimulatorProcess simulator{{}};
    const std::string host = simulator.address() + ":12443";
    CorvelRef corvel;

private:
    const ScratchFolder m_folder;
    std::shared_ptr<void> m_listener;
    std::mutex m_linesMutex;
    std::vector<std::string> m_lines;
    std::vector<std::string> m_sources;
};

} // namespace lodestar::test
