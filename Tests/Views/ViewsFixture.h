// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/Model/Corvel.h"
#include "Inventory/Feed.h"
#include "Kit/Core/NavigationController.h"
#include "Platform/NotificationCenter.h"
#include "Tests/Support/ScratchFolder.h"

#include <QByteArray>
#include <gmock/gmock.h>

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <vector>

namespace lodestar::testing
{

/// The process is in that time zone while this lives.
class InZone
{
public:
    explicit InZone(const QByteArray& zone) { set(zone); }
    ~InZone() { set(m_before); }
    InZone(const InZone&) = delete;
    InZone& operator=(const InZone&) = delete;

private:
    static void set(const QByteArray& zone)
    {
        zone.isEmpty() ? qunsetenv("TZ") : qputenv("TZ", zone);
        tzset();
    }
    const QByteArray m_before = qgetenv("TZ");
};

/// Feeds of the demonstration console by object type, and other files by their whole name, changeable from test to
/// test.
std::map<std::string, std::string>& demoFeeds();

/// The screens' surroundings, fresh for each test: an empty store in a folder of its own, empty defaults, an empty
/// working list, the storyboard with the editor only, and every logged line and some notifications kept.
class ViewsTest : public ::testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;

    static bool runUntil(const std::function<bool()>& predicate,
                         std::chrono::milliseconds limit = std::chrono::seconds(10));
    /// Runs what is queued on the main thread, and what that queues.
    static void drain();

    /// A record in the store's context and the working list.
    static CorvelRef addCorvel(const std::string& name, const std::string& address, bool demo = false);
    /// Names of the records that the store's file holds.
    std::vector<std::string> storedNames();
    static XMLElement parse(const std::string& xml);
    static std::shared_ptr<const FeedDictionary> feeds(const std::map<std::string, Feed>& byType);

    /// The names of the screen's outlets that are seen, sorted; of indicators, those that run.
    static std::string seen(const QObject& screen);
    /// What a screen has logged, each line as "line method: message".
    std::vector<std::string> log(const std::string& fileName);
    /// Likewise without the lines' numbers, for screens that log where they stand.
    std::vector<std::string> unnumberedLog(const std::string& fileName);
    std::vector<std::string> takeNotifications();

private:
    const ScratchFolder m_folder;
    std::mutex m_mutex;
    std::map<std::string, std::vector<std::string>> m_log; ///< by screen
    std::vector<std::string> m_notifications;
    std::shared_ptr<void> m_listener;
    std::vector<NotificationCenter::Observation> m_observations;
};

} // namespace lodestar::testing
