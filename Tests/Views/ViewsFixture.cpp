// SPDX-License-Identifier: Apache-2.0
#include "Tests/Views/ViewsFixture.h"

#include "Application/Model/StoreStack.h"
#include "Controllers/REST/RESTHandler.h"
#include "Feedback/VireoLogger.h"
#include "Platform/Queues/MainQueue.h"
#include "Platform/Resources.h"
#include "Platform/UserDefaults.h"
#include "Views/Common/Scenes.h"
#include "Views/Corvels/DeltaCorvelViewController.h"

#include <QMetaProperty>
#include <QStringList>
#include <fmt/format.h>

#include <utility>

namespace lodestar::testing
{
namespace
{

class DemoResources : public Resources
{
public:
    std::optional<std::string> contents(const std::string& name, const std::string& extension) const override
    {
        const auto feed = demoFeeds().find(extension == "xml" ? name : name + "." + extension);
        return feed != demoFeeds().end() ? std::optional(feed->second) : std::nullopt;
    }
};

constexpr auto console =
    "<feed><entry><content><ManagementConsole><VersionInfo><Version>3</Version><Release>2</Release>"
    "<Maintenance>4</Maintenance><Minor>0</Minor><ServicePackName>SP1</ServicePackName></VersionInfo>"
    "</ManagementConsole></content></entry></feed>";
constexpr auto systems =
    "<feed><entry><content><ManagedSystem><State>operating</State>"
    "<PhysicalSystemAttentionLEDState>true</PhysicalSystemAttentionLEDState></ManagedSystem></content></entry></feed>";

} // namespace

std::map<std::string, std::string>& demoFeeds()
{
    static std::map<std::string, std::string> feeds;
    return feeds;
}

void ViewsTest::SetUp()
{
    // Else whichever thread comes to the queue first is the main one.
    MainQueue::shared().adoptCurrentThread();
    demoFeeds() = {{"ManagementConsole", console},
                   {"ManagedSystem", systems},
                   {"VirtualIOServer", "<feed/>"},
                   {"LogicalPartition", "<feed/>"},
                   {"ServiceableEvent", "<feed><entry/><entry/></feed>"},
                   {"Group", "<feed/>"}};
    Resources::install(std::make_unique<DemoResources>());
    StoreStack::shared().setApplicationDocumentsDirectory(m_folder.path());
    for (const std::string& key : UserDefaults::standard().allKeys()) {
        UserDefaults::standard().removeObjectForKey(key);
    }
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
    m_listener = VireoLogger::addListener([this](const VireoLogger::Entry& entry) {
        const std::lock_guard lock(m_mutex);
        const std::string_view file = entry.fileName;
        const auto method = fmt::format("-[{} ", file.substr(file.rfind('/') + 1));
        // A line that is not as all screens' lines are shows whole.
        const bool isUsual = entry.level == 2 && entry.tag == 0 && entry.method.starts_with(method);
        m_log[std::string(file)].push_back(fmt::format(
            "{} {}: {}", entry.line,
            isUsual ? entry.method.substr(method.size(), entry.method.size() - method.size() - 1) : entry.method,
            entry.message));
    });
    for (const char* name : {"CloseDeltaCorvel", "StatusWillShow", "StatusShouldHide"}) {
        m_observations.push_back(NotificationCenter::defaultCenter().addObserver(
            name, [this, name] { m_notifications.emplace_back(name); }));
    }
}

void ViewsTest::TearDown()
{
    drain();
    m_observations.clear();
    m_listener.reset();
    RESTHandler::sharedInstance().setCorvelList({});
    StoreStack::shared().close();
}

bool ViewsTest::runUntil(const std::function<bool()>& predicate, std::chrono::milliseconds limit)
{
    return MainQueue::shared().runUntil(predicate, limit);
}

void ViewsTest::drain()
{
    while (MainQueue::shared().drain()) {
    }
}

CorvelRef ViewsTest::addCorvel(const std::string& name, const std::string& address, bool demo)
{
    const auto corvel = std::static_pointer_cast<Corvel>(
        StoreStack::shared().managedObjectContext().insertNewObject(Corvel::entityName));
    corvel->setName(name);
    corvel->setAddress(address);
    corvel->setUsername("oversight");
    corvel->setPassword("secret");
    corvel->setDemo(demo);
    RESTHandler::sharedInstance().addCorvel(corvel);
    return corvel;
}

std::vector<std::string> ViewsTest::storedNames()
{
    StoreStack::shared().close();
    std::vector<std::string> names;
    const auto fetched = StoreStack::shared().managedObjectContext().fetchAll(Corvel::entityName);
    if (fetched) {
        for (const auto& object : fetched.value()) {
            names.push_back(std::static_pointer_cast<Corvel>(object)->name().value_or("(null)"));
        }
    }
    return names;
}

XMLElement ViewsTest::parse(const std::string& xml)
{
    return XMLElement::parse(xml).value();
}

std::shared_ptr<const FeedDictionary> ViewsTest::feeds(const std::map<std::string, Feed>& byType)
{
    auto dictionary = std::make_shared<FeedDictionary>();
    for (const auto& [type, feed] : byType) {
        dictionary->setFeed(type, feed);
    }
    return dictionary;
}

std::string ViewsTest::seen(const QObject& screen)
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

std::vector<std::string> ViewsTest::log(const std::string& fileName)
{
    const std::lock_guard lock(m_mutex);
    return m_log[fileName];
}

std::vector<std::string> ViewsTest::unnumberedLog(const std::string& fileName)
{
    std::vector<std::string> lines = log(fileName);
    for (std::string& line : lines) {
        line.erase(0, line.find(' ') + 1);
    }
    return lines;
}

std::vector<std::string> ViewsTest::takeNotifications()
{
    return std::exchange(m_notifications, {});
}

} // namespace lodestar::testing
