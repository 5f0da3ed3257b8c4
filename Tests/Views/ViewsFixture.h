// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/Model/StoreStack.h"
#include "Controllers/REST/RESTHandler.h"
#include "Feedback/VireoLogger.h"
#include "Fleet/Registry.h"
#include "Inventory/Feed.h"
#include "Kit/Core/NavigationController.h"
#include "Platform/NotificationCenter.h"
#include "Platform/Queues/MainQueue.h"
#include "Platform/Resources.h"
#include "Platform/URLLoading/ServerTrust.h"
#include "Platform/UserDefaults.h"
#include "Tests/Support/ScratchFolder.h"
#include "Views/Common/Scenes.h"
#include "Views/Corvels/DeltaCorvelViewController.h"

#include <QMetaProperty>
#include <fmt/format.h>
#include <gmock/gmock.h>

#include <map>
#include <mutex>
#include <utility>

namespace lodestar::testing
{

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::MatchesRegex;
using ::testing::StartsWith;

/// The screens' surroundings, fresh for each test: an empty store in a folder of its own, the defaults of a second use,
/// an empty working list, no certificate trusted, the storyboard with the editor only, and every logged line and some
/// notifications kept.
class ViewsTest : public ::testing::Test
{
protected:
    /// Feeds of the demonstration console by object type, and other files by their whole name.
    static inline std::map<std::string, std::string> demoFeeds;

    ViewsTest()
    {
        // Else whichever thread comes to the queue first is the main one.
        MainQueue::shared().adoptCurrentThread();
        setZone("UTC");
        demoFeeds = {{"ManagementConsole",
                      "<feed><entry><content><ManagementConsole><VersionInfo><Version>3</Version><Release>2</Release>"
                      "<Maintenance>4</Maintenance><Minor>0</Minor><ServicePackName>SP1</ServicePackName>"
                      "</VersionInfo></ManagementConsole></content></entry></feed>"},
                     {"ManagedSystem",
                      "<feed><entry><content><ManagedSystem><State>operating</State><PhysicalSystemAttentionLEDState>"
                      "true</PhysicalSystemAttentionLEDState></ManagedSystem></content></entry></feed>"},
                     {"VirtualIOServer", "<feed/>"},
                     {"LogicalPartition", "<feed/>"},
                     {"ServiceableEvent", "<feed><entry/><entry/></feed>"},
                     {"Group", "<feed/>"}};
        Resources::install(std::make_unique<DemoResources>());
        StoreStack::shared().setApplicationDocumentsDirectory(m_folder.path());
        for (const std::string& key : UserDefaults::standard().allKeys()) {
            UserDefaults::standard().removeObjectForKey(key);
        }
        UserDefaults::standard().setBool(true, "initialLoad");
        UserDefaults::standard().setBool(true, "showedPreview");
        ServerTrust::shared().forgetAll();
        RESTHandler::sharedInstance().setCorvelList({});
        Storyboard::main() = Storyboard();
        Storyboard::main().registerScene(
            Scenes::deltaCorvel,
            [](const EditorInput& input) {
                auto editor = makeController<DeltaCorvelViewController>();
                editor->setCorvel(input.corvel);
                editor->setParentList(input.parentList);
                return editor;
            },
            QUrl());
        m_listener = VireoLogger::addListener([this](const VireoLogger::Entry& entry) { keep(entry); });
        for (const char* name : {"CloseDeltaCorvel", "StatusWillShow", "StatusShouldHide"}) {
            m_observations.push_back(NotificationCenter::defaultCenter().addObserver(
                name, [this, name] { m_notifications.emplace_back(name); }));
        }
    }
    ~ViewsTest() override
    {
        drain();
        m_observations.clear();
        m_listener.reset();
        RESTHandler::sharedInstance().setCorvelList({});
        StoreStack::shared().close();
    }

    static bool runUntil(const std::function<bool()>& predicate,
                         std::chrono::milliseconds limit = std::chrono::seconds(30))
    {
        return MainQueue::shared().runUntil(predicate, limit);
    }
    /// Runs what is queued on the main thread, and what that queues.
    static void drain()
    {
        while (MainQueue::shared().drain()) {
        }
    }

    /// The process is in that time zone until the next test.
    static void setZone(const QByteArray& zone)
    {
        qputenv("TZ", zone);
        tzset();
    }
    /// A record in the store's context and the working list.
    static CorvelRef addCorvel(const std::string& name, const std::string& address, bool demo = false)
    {
        CorvelRef corvel = insertNewCorvel();
        corvel->setName(name);
        corvel->setAddress(address);
        corvel->setUsername("oversight");
        corvel->setPassword("secret");
        corvel->setDemo(demo);
        RESTHandler::sharedInstance().addCorvel(corvel);
        return corvel;
    }
    /// Names of the records that the store's file holds.
    static std::vector<std::string> storedNames()
    {
        StoreStack::shared().close();
        std::vector<std::string> names;
        for (const CorvelRef& corvel : RESTHandler::sharedInstance().fetchCorvels()) {
            names.push_back(corvel->name().value_or("(null)"));
        }
        return names;
    }
    static XMLElement parse(const std::string& xml) { return XMLElement::parse(xml).value(); }
    static std::shared_ptr<const FeedDictionary> feeds(const std::map<std::string, Feed>& byType)
    {
        auto dictionary = std::make_shared<FeedDictionary>();
        for (const auto& [type, feed] : byType) {
            dictionary->setFeed(type, feed);
        }
        return dictionary;
    }

    /// The names of the screen's outlets that are seen, sorted; of indicators, those that run.
    static std::string seen(const QObject& screen)
    {
        QStringList names;
        for (int i = ViewController::staticMetaObject.propertyCount(); i < screen.metaObject()->propertyCount(); ++i) {
            const QMetaProperty property = screen.metaObject()->property(i);
            const auto* const outlet = property.read(&screen).value<QObject*>();
            const bool isShown = outlet != nullptr && outlet->property("hidden") == false;
            if (isShown && outlet->property("animating") != false) {
                names << QString::fromLatin1(property.name());
            }
        }
        names.sort();
        return names.join(' ').toStdString();
    }
    /// What a screen has logged, each line as "line method: message".
    std::vector<std::string> log(const std::string& fileName)
    {
        const std::lock_guard lock(m_mutex);
        return m_log[fileName];
    }
    /// Likewise without the lines' numbers, for screens that log where they stand.
    std::vector<std::string> unnumberedLog(const std::string& fileName)
    {
        std::vector<std::string> lines = log(fileName);
        for (std::string& line : lines) {
            line.erase(0, line.find(' ') + 1);
        }
        return lines;
    }
    std::vector<std::string> takeNotifications() { return std::exchange(m_notifications, {}); }

private:
    class DemoResources : public Resources
    {
    public:
        std::optional<std::string> contents(const std::string& name, const std::string& extension) const override
        {
            const auto feed = demoFeeds.find(extension == "xml" ? name : name + "." + extension);
            return feed != demoFeeds.end() ? std::optional(feed->second) : std::nullopt;
        }
    };

    void keep(const VireoLogger::Entry& entry)
    {
        const std::lock_guard lock(m_mutex);
        const std::string_view file = entry.fileName;
        const auto start = fmt::format("-[{} ", file.substr(file.rfind('/') + 1));
        // A line that is not as all screens' lines are shows whole.
        const bool isUsual = entry.level == 2 && entry.tag == 0 && entry.method.starts_with(start);
        const std::string_view method =
            isUsual ? entry.method.substr(start.size(), entry.method.size() - start.size() - 1) : entry.method;
        m_log[std::string(file)].push_back(fmt::format("{} {}: {}", entry.line, method, entry.message));
    }

    const ScratchFolder m_folder;
    std::mutex m_mutex;
    std::map<std::string, std::vector<std::string>> m_log; ///< by screen
    std::vector<std::string> m_notifications;
    std::shared_ptr<void> m_listener;
    std::vector<NotificationCenter::Observation> m_observations;
};

} // namespace lodestar::testing
