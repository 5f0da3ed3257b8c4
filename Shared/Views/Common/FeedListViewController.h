// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Controllers/REST/RXPromise.h"
#include "Inventory/Feed.h"
#include "Kit/Core/Bars.h"
#include "Kit/Core/Table.h"
#include "Kit/Core/ViewController.h"
#include "Platform/Queues/MainQueue.h"
#include "Views/Common/CorvelReceiving.h"
#include "Views/Common/FeedListTraits.h"
#include "Views/Common/ScreenLog.h"
#include "Views/Common/TitleHeader.h"

#include <atomic>
#include <string>
#include <string_view>

namespace lodestar
{

/// The list of one of a console's feeds: header with time stamp, table, search, pull to refresh, and three looks:
/// loading, content, no content. It shows the feed of the console's last whole fetch if that has ended, and fetches its
/// own otherwise; a fetch of its own is stored in the record, so that other screens see it.
///
/// A screen of this kind gives its traits and overrides
///  - `showFeed`: makes the rows of a feed and ends in the content's look;
///  - `emptyLists`: before each fresh fetch;
///  - `filterContentForSearchText`, and what a TableDataSource answers.
/// Its scene is a FeedListScene with the delegate of a row.
///
/// Threads. `showFeed` runs on a background queue for a stored feed and on the main thread after a fetch, and may block
/// there. What it makes it hands to the main thread as one finished value (`onMainThread`); lists that rows are read
/// from are touched on the main thread only. Calls are marked "any thread" where they may come from `showFeed`.
///
/// Turns. Each fetch is a turn, and what is shown is the last turn's: a fetch that was overtaken by another stores its
/// feed and shows nothing, so that impatience makes no row twice. The first load has the turn of the list's opening.
class FeedListViewController : public lodestar::ViewController, public TableDataSource, public CorvelReceiving
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")
    Q_PROPERTY(lodestar::TitleHeader* header READ header CONSTANT)
    Q_PROPERTY(lodestar::TableOutlet* tableView READ tableView CONSTANT)
    Q_PROPERTY(lodestar::TableOutlet* searchResultsTableView READ searchResultsTableView CONSTANT)
    Q_PROPERTY(lodestar::RefreshControl* refreshControl READ refreshControl CONSTANT)
    Q_PROPERTY(lodestar::SearchBarOutlet* searchBar READ searchBar CONSTANT)
    Q_PROPERTY(lodestar::BarButtonOutlet* rightBarButton READ rightBarButton CONSTANT)
    Q_PROPERTY(lodestar::IndicatorOutlet* fetchingActivityIndicator READ fetchingActivityIndicator CONSTANT)
    Q_PROPERTY(lodestar::ImageOutlet* noDataImage READ noDataImage CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* noDataLabel READ noDataLabel CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* noDataHeadline READ noDataHeadline CONSTANT)
    Q_PROPERTY(QString emptyText READ emptyText CONSTANT)

public:
    /// The traits outlive the screen.
    explicit FeedListViewController(const FeedListTraits& traits);

    TitleHeader* header() { return &m_header; }
    TableOutlet* tableView() { return &m_tableView; }
    TableOutlet* searchResultsTableView() { return &m_searchResultsTableView; }
    RefreshControl* refreshControl() { return &m_refreshControl; }
    SearchBarOutlet* searchBar() { return &m_searchBar; }
    BarButtonOutlet* rightBarButton() { return &m_rightBarButton; }
    IndicatorOutlet* fetchingActivityIndicator() { return &m_fetchingActivityIndicator; }
    ImageOutlet* noDataImage() { return &m_noDataImage; }
    LabelOutlet* noDataLabel() { return &m_noDataLabel; }
    /// Without text in lists that have one label only.
    LabelOutlet* noDataHeadline() { return &m_noDataHeadline; }
    QString emptyText() const;

    void setCustomNavigationBar() { m_header.setCustomNavigationBar(); }
    /// Any thread; after `setCustomNavigationBar`, or the process ends.
    void setHeaderTitle(const QString& title, const QString& subtitle) { m_header.setHeaderTitle(title, subtitle); }

    /// Logs on with the stored key, fetches the feed, stores and shows it. Fulfilled with "OK" once it is shown or was
    /// overtaken, rejected once the failure is. Any thread.
    RXPromise<std::string> fetchNewRESTData();
    /// The header becomes the screen's title and the feed's time stamp. Any thread.
    void parseTimeStampFromXML(const XMLElement& feedRoot);
    /// The pull.
    void refreshTable();
    void refreshFromButton();

    /// The three looks. Any thread: each takes effect later, on the main thread.
    void UILoadingData();
    void UIShowContent();
    void UINoContent();

    /// Rebuilds what the table of search results shows. The scope is passed and plays no part.
    virtual void filterContentForSearchText(const QString& searchText, const QString& scope) = 0;
    /// Filters; always true.
    bool shouldReloadTableForSearchString(const QString& searchString);
    void showSearchBar();

protected:
    using Turn = int;

    void viewDidLoad() override;
    /// The first load, on a background queue: the stored feed, or a fetch if the console has not been fetched.
    void fetchFeed(Turn turn);
    /// Shows a feed that is there: its rows, its time stamp, the content's look, in the screen's own order. Fulfilled
    /// with "OK" when it is done.
    virtual RXPromise<std::string> showFeed(const XMLElement& feedRoot, Turn turn) = 0;
    /// Main thread.
    virtual void emptyLists() = 0;

    /// The last fetch's. Any thread.
    Turn turn() const { return m_turn; }
    /// Whether what belongs to the turn is still wanted. Any thread.
    bool isLast(Turn turn) const { return m_turn == turn; }
    /// Whether the screen was closed: nobody sees what it would still find out. Any thread.
    bool isClosed() const { return navigationController() == nullptr; }
    /// `UIShowContent`, unless the turn is over by then. Any thread.
    void showContentOf(Turn turn);
    static RXPromise<std::string> done();

    /// `fetchNewRESTData` under another name in the log. Any thread.
    RXPromise<std::string> fetchAfresh(const FeedFetch& fetch);
    /// The record's feed as it is now. Any thread.
    Feed feed() const;
    std::string_view type() const { return m_traits.type; }
    TableOutlet& table(TableKind kind)
    {
        return kind == TableKind::SearchResults ? m_searchResultsTableView : m_tableView;
    }
    /// What is searched for if that table asks; empty for the screen's own.
    QString matchFor(TableKind tableView) const;
    const ScreenLog& log() const { return m_log; }

    /// Runs `change(screen)` on the main thread: at once when called there, otherwise later, in order. The screen is
    /// kept until then.
    template <typename Controller, typename Change>
    void onMainThread(Change change)
    {
        MainQueue::shared().run(
            [screen = self<Controller>(), change = std::move(change)]() mutable { change(*screen); });
    }

    /// Makes a list ready to be searched if that holds up no screen: after a fetch the first search does it.
    template <typename List>
    static void prepareSearchOffMain(List& list)
    {
        if (!MainQueue::shared().isCurrent()) {
            list.prepareSearch();
        }
    }

private:
    RXPromise<std::string> adopt(const XMLElement& feedRoot, Turn turn);
    QString translated(const char* text) const;
    void showContentNow();
    void showNoContentNow();

    const FeedListTraits& m_traits;
    ScreenLog m_log;
    std::atomic<Turn> m_turn = 0;
    Turn m_storedTurn = 0; ///< of the newest fetch that brought a feed; main thread
    TitleHeader m_header;
    TableOutlet m_tableView;
    TableOutlet m_searchResultsTableView;
    RefreshControl m_refreshControl;
    SearchBarOutlet m_searchBar;
    BarButtonOutlet m_rightBarButton;
    IndicatorOutlet m_fetchingActivityIndicator;
    ImageOutlet m_noDataImage;
    LabelOutlet m_noDataLabel;
    LabelOutlet m_noDataHeadline;
};

} // namespace lodestar
