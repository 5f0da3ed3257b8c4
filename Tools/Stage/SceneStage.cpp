// SPDX-License-Identifier: Apache-2.0
#include "Tools/Stage/SceneStage.h"

#include "Application/Adapters/PackageResources.h"
#include "Application/MainStoryboard.h"
#include "Application/Model/StoreStack.h"
#include "Controllers/REST/RESTHandler.h"
#include "Feedback/UI/FeedbackUI.h"
#include "Fleet/History.h"
#include "Kit/Core/NavigationController.h"
#include "Kit/Core/UIColor+Tessel.h"
#include "Platform/Resources.h"
#include "Platform/UserDefaults.h"
#include "Views/Attention/AttentionViewController.h"
#include "Views/Common/Scenes.h"
#include "Views/Views.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QQmlComponent>
#include <QTimer>
#include <fmt/core.h>

#include <stdexcept>

namespace lodestar::scenes
{
namespace
{

constexpr int waitLimit = 5000;

std::string feedOf(const std::string& type, const std::string& element,
                   const std::vector<std::pair<std::string, int>>& states)
{
    std::string xml = "<feed>";
    for (const auto& [state, count] : states) {
        for (int i = 0; i < count; ++i) {
            xml += fmt::format("<entry><content><{0}><{1}>{2}</{1}></{0}></content></entry>", type, element, state);
        }
    }
    return xml + "</feed>";
}

Feed parse(const std::string& xml)
{
    return Feed(XMLElement::parse(xml).value());
}

CorvelRef makeRecord(const ConsoleLook& look)
{
    auto corvel = std::static_pointer_cast<Corvel>(
        StoreStack::shared().managedObjectContext().insertNewObject(Corvel::entityName));
    corvel->setName(look.name);
    corvel->setAddress(look.address);
    corvel->setUsername("oversight");
    corvel->setPassword("twelve-chars");
    if (!look.version.empty()) {
        corvel->setVersion(look.version);
    }
    corvel->completedFetch = look.state != ConsoleLook::State::Fetching;
    corvel->isOnline = look.state == ConsoleLook::State::Online;
    corvel->numMSErrors = look.systemErrors;
    corvel->numMSLEDs = look.attentionLEDs;
    auto feeds = std::make_shared<FeedDictionary>();
    feeds->setFeed(ObjectType::ManagedSystem, parse(feedOf("ManagedSystem", "State", look.systems)));
    feeds->setFeed(ObjectType::LogicalPartition, parse(feedOf("LogicalPartition", "PartitionState", look.partitions)));
    feeds->setFeed(ObjectType::ServiceableEvent, parse(feedOf("ServiceableEvent", "Id", {{"1", look.events}})));
    corvel->setRestData(feeds);
    return corvel;
}

void setRecords(const std::vector<ConsoleLook>& consoles)
{
    std::vector<CorvelRef> records;
    records.reserve(consoles.size());
    for (const ConsoleLook& look : consoles) {
        records.push_back(makeRecord(look));
    }
    RESTHandler::sharedInstance().setCorvelList(std::move(records));
}

void collect(QQuickItem* from, const std::function<bool(QQuickItem*)>& wanted, std::vector<QQuickItem*>& found)
{
    if (!from->isVisible()) {
        return;
    }
    if (wanted(from)) {
        found.push_back(from);
    }
    for (QQuickItem* child : from->childItems()) {
        collect(child, wanted, found);
    }
}

bool hasType(const QObject* object, const QByteArray& name)
{
    for (const QMetaObject* type = object->metaObject(); type != nullptr; type = type->superClass()) {
        const QByteArray typeName = type->className();
        if (typeName == name || typeName.startsWith(name + "_QML")) {
            return true;
        }
    }
    return false;
}

/// Facts that are the same on every machine and tell nothing of the one that makes the pictures.
Report factsOfAPhone()
{
    Report facts;
    facts.made = "2026-03-12T16:40:51Z";
    facts.version = "1.0.0";
    facts.system = "Debian GNU/Linux 12 (bookworm), Linux 6.1.0, aarch64";
    facts.session = "59b1c3d3a9be44f0";
    return facts;
}

} // namespace

std::vector<ConsoleLook> fleet()
{
    using State = ConsoleLook::State;
    return {
        {.name = "Harbour A",
         .address = "corvel-a.harbour.example",
         .version = "V3R2.4.0.SP1",
         .attentionLEDs = 0,
         .events = 3,
         .systems = {{"operating", 17}, {"incomplete", 2}},
         .partitions = {{"not activated", 21}, {"running", 60}}},
        {.name = "Harbour B",
         .address = "corvel-b.harbour.example",
         .version = "V3R2.4.0.SP1",
         .systemErrors = 2,
         .attentionLEDs = 2,
         .events = 14,
         .systems = {{"standby", 3}, {"power off", 4}, {"error", 1}},
         .partitions = {{"running", 36}, {"starting", 5}, {"shutting down", 3}, {"error", 4}}},
        {.name = "Ridgeway Laboratory", .address = "10.24.8.11", .version = "V3R2.3.2.SP4", .state = State::Fetching},
        {.name = "Northfield Recovery Site",
         .address = "corvel-1.northfield.example",
         .version = "V3R1.9.0.SP2",
         .state = State::Offline},
        {.name = "Uplands Colocation",
         .address = "corvel-2.uplands.example",
         .version = "V3R2.4.0.SP1",
         .attentionLEDs = 1},
        {.name = "Demo Corvel", .address = "127.0.0.1", .version = "V3R2.4.0.SP1", .attentionLEDs = 1, .events = 4},
    };
}

std::vector<ConsoleLook> longNames()
{
    using State = ConsoleLook::State;
    const std::string name = "Recovery site of the northern harbour district, second hall, racks 12 to 48";
    const std::string address = "management-console-0017.recovery-north.infrastructure.customers.example.org";
    return {
        {.name = name, .address = address, .version = "V10R2.1070.0.SP1045", .attentionLEDs = 128, .events = 12840},
        {.name = name,
         .address = address,
         .version = "V10R2.1070.0.SP1045",
         .systemErrors = 7,
         .attentionLEDs = 99999,
         .events = 99999},
        {.name = name, .address = address, .state = State::Offline},
        {.name = name, .address = address, .version = "V(null)R(null).(null).(null).(null)"},
        {.name = "A", .address = "::1", .state = State::Fetching},
    };
}

CorvelRef demoConsole(const std::map<std::string, std::string>& feeds)
{
    auto corvel = std::static_pointer_cast<Corvel>(
        StoreStack::shared().managedObjectContext().insertNewObject(Corvel::entityName));
    corvel->setName("Harbour B");
    corvel->setAddress("127.0.0.1");
    corvel->setDemo(true);
    corvel->completedFetch = true;
    corvel->isOnline = true;
    auto dictionary = std::make_shared<FeedDictionary>();
    for (const std::string_view type :
         {ObjectType::ManagementConsole, ObjectType::ManagedSystem, ObjectType::VirtualIOServer,
          ObjectType::LogicalPartition, ObjectType::ServiceableEvent, ObjectType::Group}) {
        const auto given = feeds.find(std::string(type));
        if (given == feeds.end()) {
            dictionary->setFeed(type, Feed(RESTHandler::sharedInstance().getDemoDataForContentType(type)));
        } else {
            dictionary->setFeed(type, given->second.empty() ? Feed::notAvailable() : parse(given->second));
        }
    }
    corvel->setRestData(dictionary);
    return corvel;
}

SceneStage::SceneStage()
{
    StoreStack::shared().setApplicationDocumentsDirectory(m_folder.path().toStdString());
    History::shared().open(m_folder.path().toStdString());
    Resources::install(std::make_unique<PackageResources>());
    UserDefaults::standard().setBool(true, "initialLoad");
    UserDefaults::standard().setBool(true, "showedPreview");
    TabBarAppearance::appearance().selectedImageTintColor = UIColor::selectedBlue();
    Storyboard::main() = Storyboard();
    registerMainStoryboard([](const std::shared_ptr<ViewController>&) {});
    installViews(m_engine);
    installFeedbackUI(m_engine);
    QObject::connect(&m_engine, &QQmlEngine::warnings, [this](const QList<QQmlError>& warnings) {
        for (const QQmlError& warning : warnings) {
            m_warnings << warning.toString();
        }
    });
}

SceneStage::~SceneStage()
{
    closeWindow();
    RESTHandler::sharedInstance().setCorvelList({});
    History::shared().close();
    StoreStack::shared().close();
}

void SceneStage::closeWindow()
{
    if (m_list) {
        // A sheet keeps the screen under it alive. Dismissing the sheet frees both, and with them the notifications
        // that they would still post.
        for (const auto& screen : m_list->navigationController()->viewControllers()) {
            screen->dismissSemiModalView();
        }
    }
    m_window.reset();
    m_feedback.reset();
    m_tabs.reset();
    m_list.reset();
    m_dashboard.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

void SceneStage::show(QSize size, const std::vector<ConsoleLook>& consoles)
{
    closeWindow();
    RESTHandler::sharedInstance().setCorvelList({});
    m_list = Storyboard::main().instantiate<CorvelListViewController>(Scenes::corvelListView);
    m_dashboard = Storyboard::main().instantiate<DashboardTableViewController>(Scenes::dashboardView);
    m_tabs = makeController<TabBarController>(std::vector<TabBarItem>{
        {QCoreApplication::translate("MainStoryboard", "Corvels"), "tab_consoles",
         makeController<NavigationController>(m_list)},
        {QCoreApplication::translate("MainStoryboard", "Dashboard"), "tab_dashboard",
         makeController<NavigationController>(m_dashboard)},
        {QCoreApplication::translate("MainStoryboard", "Attention"), "tab_attention",
         makeController<NavigationController>(Storyboard::main().instantiateViewController(Scenes::attentionView))}});
    countAttention(*m_tabs, m_tabs->count() - 1);
    // Loaded before there are records, so that nothing is fetched.
    m_tabs->loadViewIfNeeded();
    m_list->loadViewIfNeeded();
    setRecords(consoles);
    m_list->tableView()->setHidden(consoles.empty());
    m_list->tableView()->reloadData();

    m_feedback = std::make_unique<FeedbackHost>();
    m_feedback->setUp({.store = reports(),
                       .crashFolder = m_folder.filePath("Crashes").toStdString(),
                       .logFolder = m_folder.filePath("Logs").toStdString(),
                       .exportFolder = m_folder.filePath("Exported").toStdString(),
                       .address = {},
                       .facts = &factsOfAPhone,
                       .secrets = [] { return std::vector<std::string>{"twelve-chars"}; }});
    QQmlComponent component(&m_engine);
    component.setData("import QtQuick\nimport Lodestar.Feedback\nimport Lodestar.Kit\n"
                      "Window { id: window; required property ViewController controller\n"
                      "required property FeedbackHost feedback\n"
                      "FeedbackLayer { anchors.fill: parent; subject: window.feedback }\n"
                      "color: Theme.ground; LayoutMirroring.enabled: Theme.mirrored\n"
                      "LayoutMirroring.childrenInherit: true\n"
                      "SceneView { anchors.fill: parent; focus: true; reportsAppearance: true\n"
                      "controller: window.controller } }",
                      QUrl(QStringLiteral("stage.qml")));
    QObject* made = component.createWithInitialProperties(
        {{QStringLiteral("controller"), QVariant::fromValue<QObject*>(m_tabs.get())},
         {QStringLiteral("feedback"), QVariant::fromValue<QObject*>(m_feedback.get())}});
    m_window.reset(qobject_cast<QQuickWindow*>(made));
    if (!m_window) {
        throw std::runtime_error(component.errorString().toStdString());
    }
    m_window->resize(size);
    m_window->show();
    m_window->requestActivate();
    settle(60);
}

void SceneStage::showDashboard()
{
    m_tabs->setSelectedIndex(1);
    settle(60);
}

DeltaCorvelViewController* SceneStage::openEditor()
{
    m_list->addCorvel();
    return qobject_cast<DeltaCorvelViewController*>(m_list->semiModal()->controller());
}

bool SceneStage::waitFor(const std::function<bool()>& predicate) const
{
    QElapsedTimer timer;
    timer.start();
    while (!predicate()) {
        if (timer.elapsed() > waitLimit) {
            return false;
        }
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return true;
}

void SceneStage::settle(int milliseconds) const
{
    QEventLoop loop;
    QTimer timer;
    timer.setSingleShot(true);
    QObject::connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
    timer.start(milliseconds);
    loop.exec();
}

QImage SceneStage::grab() const
{
    return m_window->grabWindow();
}

std::vector<QQuickItem*> SceneStage::items(const QString& typeName) const
{
    std::vector<QQuickItem*> found;
    collect(
        m_window->contentItem(), [name = typeName.toLatin1()](QQuickItem* item) { return hasType(item, name); }, found);
    return found;
}

std::vector<QQuickItem*> SceneStage::buttons() const
{
    std::vector<QQuickItem*> found;
    collect(
        m_window->contentItem(), [](QQuickItem* item) { return hasType(item, "lodestar::Pressable"); }, found);
    return found;
}

QQuickItem* SceneStage::item(const QString& objectName) const
{
    std::vector<QQuickItem*> found;
    collect(
        m_window->contentItem(), [&objectName](QQuickItem* item) { return item->objectName() == objectName; }, found);
    return found.empty() ? nullptr : found.front();
}

void SceneStage::swipe(int row) const
{
    for (QQuickItem* place : items(QStringLiteral("TableRow"))) {
        if (place->property("index").toInt() == row) {
            QMetaObject::invokeMethod(place->property("swipe").value<QQuickItem*>(), "toggle");
        }
    }
}

} // namespace lodestar::scenes
