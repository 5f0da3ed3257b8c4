// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/Model/Corvel.h"
#include "Feedback/UI/FeedbackHost.h"
#include "Kit/Core/TabBarController.h"
#include "Views/Common/FeedListViewController.h"
#include "Views/Common/Scenes.h"
#include "Views/Corvels/CorvelListViewController.h"
#include "Views/Corvels/DeltaCorvelViewController.h"
#include "Views/Dashboard/DashboardTableViewController.h"

#include <QImage>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSize>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace lodestar::scenes
{

/// How to make a record of the working list look.
struct ConsoleLook {
    enum class State { Fetching, Online, Offline };

    std::string name{};
    std::string address{};
    std::string version{}; ///< empty for a console that was never fetched
    State state = State::Online;
    int systemErrors = 0;
    int attentionLEDs = 0;
    int events = 0;
    /// State texts with their counts, in order.
    std::vector<std::pair<std::string, int>> systems{};
    std::vector<std::pair<std::string, int>> partitions{};
};

/// Six consoles that show every state between them, with inventories for the dashboard's two pies.
std::vector<ConsoleLook> fleet();
/// Consoles with names, addresses and counts far too long for a row.
std::vector<ConsoleLook> longNames();

/// A fetched console with the demonstration's feeds. Texts in `feeds` replace feeds of their type; an empty text stands
/// for a feed that failed. No list holds the console.
CorvelRef demoConsole(const std::map<std::string, std::string>& feeds = {});

/// A window with the main interface's three tabs, drawn without a display. Nothing is fetched: records look as their
/// `ConsoleLook` says. One at a time; needs a QGuiApplication.
class SceneStage
{
public:
    SceneStage();
    ~SceneStage();
    SceneStage(const SceneStage&) = delete;
    SceneStage& operator=(const SceneStage&) = delete;

    /// Makes new controllers and scenes for these records. The size is in points.
    void show(QSize size, const std::vector<ConsoleLook>& consoles);
    void showDashboard();
    DeltaCorvelViewController* openEditor();
    /// A screen over the console list.
    template <typename Controller = ViewController, typename Input>
    Controller* open(Scene<Input> scene, std::type_identity_t<Input> input) const
    {
        openScene(*m_list, scene, std::move(input));
        settle(60);
        return qobject_cast<Controller*>(m_list->navigationController()->topViewController());
    }

    /// Likewise a list, when it has fetched what it shows and its motion has ended.
    template <typename List = FeedListViewController, typename Input>
    List& openList(Scene<Input> scene, std::type_identity_t<Input> input) const
    {
        List& list = *open<List>(scene, std::move(input));
        waitFor([&list] { return !list.fetchingActivityIndicator()->isAnimating(); });
        settle();
        return list;
    }

    CorvelListViewController& list() const { return *m_list; }
    DashboardTableViewController& dashboard() const { return *m_dashboard; }
    TabBarController& tabs() const { return *m_tabs; }
    QQuickWindow& window() const { return *m_window; }
    /// Feedback's screens, laid over the window. Their files are in the stage's folder, and their only secret is the
    /// password that all consoles share.
    FeedbackHost& feedback() const { return *m_feedback; }
    ReportStore reports() const { return ReportStore(m_folder.filePath("Reports").toStdString()); }

    /// Runs the event loop until the predicate holds. False when it does not hold within five seconds.
    bool waitFor(const std::function<bool()>& predicate) const;
    /// Runs the event loop for this time, so that motion ends.
    void settle(int milliseconds = 400) const;
    /// The window's picture in device pixels.
    QImage grab() const;

    /// The visible items whose C++ or QML type has the name, in the tree's order.
    std::vector<QQuickItem*> items(const QString& typeName) const;
    /// Every visible item that a person can press, except rows of tables.
    std::vector<QQuickItem*> buttons() const;
    QQuickItem* item(const QString& objectName) const;
    /// Swipes the row, so that its buttons show.
    void swipe(int row) const;
    /// The QML engine's warnings so far.
    const QStringList& warnings() const { return m_warnings; }

private:
    void closeWindow();

    QTemporaryDir m_folder;
    QQmlEngine m_engine;
    QStringList m_warnings;
    std::shared_ptr<CorvelListViewController> m_list;
    std::shared_ptr<DashboardTableViewController> m_dashboard;
    std::shared_ptr<TabBarController> m_tabs;
    std::unique_ptr<FeedbackHost> m_feedback;
    std::unique_ptr<QQuickWindow> m_window;
};

} // namespace lodestar::scenes
