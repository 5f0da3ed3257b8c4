// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/Model/Corvel.h"
#include "Feedback/UI/FeedbackHost.h"
#include "Kit/Core/TabBarController.h"
#include "Views/Common/FeedListViewController.h"
#include "Views/Common/SceneInputs.h"
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

/// How a record of the working list is to look.
struct ConsoleLook {
    enum class State { Fetching, Online, Offline };

    std::string name{};
    std::string address{};
    std::string version{}; ///< empty for one that was never fetched
    State state = State::Online;
    int systemErrors = 0;
    int attentionLEDs = 0;
    int events = 0;
    /// State text and count, in order.
    std::vector<std::pair<std::string, int>> systems{};
    std::vector<std::pair<std::string, int>> partitions{};
};

/// Six consoles in every state, with inventories that make the dashboard's two pies.
std::vector<ConsoleLook> fleet();
/// Names, addresses and counts far longer than any row.
std::vector<ConsoleLook> longNames();

/// A fetched console with the demonstration's feeds, those that are given in their place; an empty text is a feed that
/// failed. It is in no list.
CorvelRef demoConsole(const std::map<std::string, std::string>& feeds = {});

/// A window with the two tabs of the main interface in it, drawn without a display. Nothing is fetched: records are as
/// they are told. One at a time; needs a QGuiApplication.
class SceneStage
{
public:
    SceneStage();
    ~SceneStage();
    SceneStage(const SceneStage&) = delete;
    SceneStage& operator=(const SceneStage&) = delete;

    /// Fresh controllers and scenes over these records. Points.
    void show(QSize size, const std::vector<ConsoleLook>& consoles);
    void showDashboard();
    DeltaCorvelViewController* openEditor();
    /// A screen over the console list, by its scene's identifier; null for a scene that the stage does not have.
    ViewController* open(std::string_view identifier, SceneInputs inputs) const;
    template <typename Controller>
    Controller* open(std::string_view identifier, SceneInputs inputs) const
    {
        return qobject_cast<Controller*>(open(identifier, std::move(inputs)));
    }

    /// Likewise a list, when it has fetched what it shows and its motion has ended.
    template <typename List = FeedListViewController>
    List& openList(std::string_view identifier, SceneInputs inputs) const
    {
        List& list = *open<List>(identifier, std::move(inputs));
        waitFor([&list] { return !list.fetchingActivityIndicator()->isAnimating(); });
        settle();
        return list;
    }

    CorvelListViewController& list() const { return *m_list; }
    DashboardTableViewController& dashboard() const { return *m_dashboard; }
    TabBarController& tabs() const { return *m_tabs; }
    QQuickWindow& window() const { return *m_window; }
    /// Laid over the window, its files in a folder of the stage's. The consoles' one password is the secret.
    FeedbackHost& feedback() const { return *m_feedback; }
    ReportStore reports() const { return ReportStore(m_folder.filePath("Reports").toStdString()); }

    /// Runs the event loop until the predicate holds; false when it does not within five seconds.
    bool waitFor(const std::function<bool()>& predicate) const;
    /// Runs the event loop for that time, to let motion end.
    void settle(int milliseconds = 400) const;
    /// The window's picture in device pixels.
    QImage grab() const;

    /// Visible items whose C++ or QML type has the name, in the order of the tree.
    std::vector<QQuickItem*> items(const QString& typeName) const;
    /// Everything visible that is pressed by itself: rows of tables are not.
    std::vector<QQuickItem*> buttons() const;
    QQuickItem* item(const QString& objectName) const;
    /// Uncovers a row's buttons.
    void swipe(int row) const;
    /// Warnings of the QML engine so far.
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
