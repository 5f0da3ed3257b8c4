// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Controllers/REST/RXPromise.h"
#include "Inventory/Feed.h"
#include "Kit/Core/Bars.h"
#include "Kit/Core/Table.h"
#include "Kit/Core/ViewController.h"
#include "Platform/Queues/DispatchQueue.h"
#include "Platform/Queues/MainQueue.h"
#include "Platform/Queues/ThreadPool.h"
#include "Views/Common/CorvelReceiving.h"
#include "Views/Common/FeedListTraits.h"
#include "Views/Common/ListShare.h"
#include "Views/Common/ReadingMark.h"
#include "Views/Common/ReadingWatch.h"
#include "Views/Common/ScreenLog.h"
#include "Views/Common/TitleHeader.h"

#include <atomic>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

/// The list of one of a console's feeds: header with time stamp, table, search, pull to refresh, and three looks:
/// loading, content, no content. The list shows the feed of the console's last whole fetch if that fetch has ended;
/// otherwise it fetches the feed itself. It stores a feed that it fetched in the console's record, so that other
/// screens see it.
///
/// A subclass gives its traits and overrides
///  - `showFeed`: has the rows of a feed made and taken over, and then shows the content;
///  - `emptyLists`: called before each fresh fetch;
///  - `filterContentForSearchText`, `elementsOfTable`, `elementOfRow` and the functions of TableDataSource.
/// Its scene is a FeedListScene with the delegate of a row.
///
/// Threads: rows are made in two steps (`makeRows`). A function that knows no screen makes a value of the feed on a
/// background queue; another function takes the value over on the main thread, and only the main thread touches the
/// lists that rows are read from. `showFeed`, which begins this, is called on a background queue for a stored feed and
/// on the main thread after a fetch, and may block there. Functions that `showFeed` may call are marked "any thread".
///
/// Turns: each fetch is a turn, and only the last turn is shown. A fetch that another one has overtaken stores its feed
/// but shows nothing, so that repeated refreshing never makes a row twice. The first load takes the turn that the list
/// has when it opens.
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
    Q_PROPERTY(QString consoleName READ consoleName CONSTANT)
    Q_PROPERTY(lodestar::ReadingMark readingMark READ readingMark NOTIFY readingMarkChanged)
    Q_PROPERTY(lodestar::ListShare* share READ share CONSTANT)

public:
    /// The traits must outlive the screen.
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
    /// Its text is empty in lists that have one label only.
    LabelOutlet* noDataHeadline() { return &m_noDataHeadline; }
    QString emptyText() const;
    QString consoleName() const;
    /// How old the console's feed is, whoever read it.
    const ReadingMark& readingMark() const { return m_readingMark; }
    ListShare* share() { return &m_share; }

    void setCustomNavigationBar() { m_header.setCustomNavigationBar(); }
    /// Any thread. Before `setCustomNavigationBar`, a call ends the process.
    void setHeaderTitle(const QString& title, const QString& subtitle) { m_header.setHeaderTitle(title, subtitle); }

    /// Logs on with the stored key, fetches the feed, stores it and shows it. Fulfilled with "OK" when the feed is
    /// shown or was overtaken; rejected when the failure is shown. Any thread.
    RXPromise<std::string> fetchNewRESTData();
    /// Sets the header to the screen's title and the feed's time stamp. Any thread.
    void parseTimeStampFromXML(const XMLElement& feedRoot);
    /// Handles a pull to refresh.
    void refreshTable();
    void refreshFromButton();

    /// Show the three looks. Any thread; each takes effect later, on the main thread; the content's look only if no
    /// fetch has begun by then.
    void UILoadingData();
    void UIShowContent();
    void UINoContent();

    /// Rebuilds the search results. `scope` is ignored.
    virtual void filterContentForSearchText(const QString& searchText, const QString& scope) = 0;
    /// Filters the list; always returns true.
    bool shouldReloadTableForSearchString(const QString& searchString);
    void showSearchBar();

Q_SIGNALS:
    void readingMarkChanged();

protected:
    using Turn = int;
    /// Where a feed that is shown comes from.
    enum class Source { Record, Fetch };

    void viewDidLoad() override;
    void viewDidAppear() override;
    void viewDidDisappear() override;
    /// The first load, on a background queue: shows the stored feed, or fetches it if the console has not been fetched.
    void fetchFeed(Turn turn);
    /// Shows a given feed: its rows, its time stamp and the content's look, in an order that the subclass chooses.
    /// Fulfilled with "OK" when everything is shown.
    virtual RXPromise<std::string> showFeed(const Feed& feed, Turn turn, Source source) = 0;
    /// Empties the subclass's lists. Main thread.
    virtual void emptyLists() = 0;

    /// The turn of the last fetch. Any thread.
    Turn turn() const { return m_turn; }
    /// Whether the turn is still the last, so that its result is wanted. Any thread.
    bool isLast(Turn turn) const { return m_turn == turn; }
    /// Whether the screen was closed, so that further work for it is useless. Any thread.
    bool isClosed() const { return navigationController() == nullptr; }
    /// Does the same as `fetchNewRESTData` under another name in the log. Any thread.
    RXPromise<std::string> fetchAfresh(const FeedFetch& fetch);
    /// The feed that the console's record has now. Any thread.
    Feed feed() const;
    std::string_view type() const { return m_traits.type; }
    TableOutlet& table(TableKind kind)
    {
        return kind == TableKind::SearchResults ? m_searchResultsTableView : m_tableView;
    }
    /// The elements behind a table's rows, in the order of the rows.
    virtual std::vector<XMLElement> elementsOfTable(TableKind tableView) const = 0;
    /// The element behind a row; no element for a row that does not exist.
    virtual XMLElement elementOfRow(TableKind tableView, IndexPath indexPath) const = 0;
    std::size_t keyForRowAtIndexPath(TableKind tableView, IndexPath indexPath) const override;
    /// The searched text for the table of search results; empty for the screen's own table.
    QString matchFor(TableKind tableView) const;
    const ScreenLog& log() const { return m_log; }

    /// Calls `make()`, which returns the rows of a feed, on a background queue, then `adopt(screen, rows)` on the main
    /// thread unless the turn is over by then. Fulfils `shown` with "OK" in either case. The screen is kept alive until
    /// then. Any thread.
    template <typename Screen, typename Make, typename Adopt>
    RXPromise<std::string> makeRows(Turn turn, Make make, Adopt adopt, RXPromise<std::string> shown = {})
    {
        const ThreadPool::UrgentScope forPerson(true);
        DispatchQueue::globalBackground().async(
            [screen = self<Screen>(), turn, make = std::move(make), adopt = std::move(adopt), shown]() mutable {
                MainQueue::shared().async(
                    [screen = std::move(screen), turn, rows = make(), adopt = std::move(adopt), shown]() mutable {
                        if (screen->isLast(turn)) {
                            adopt(*screen, std::move(rows));
                        }
                        shown.fulfillWithValue("OK");
                    });
            });
        return shown;
    }

private:
    RXPromise<std::string> storeAndShow(const XMLElement& feedRoot, Turn turn);
    QString translated(const char* text) const;
    QString shareName() const;
    Table shownTable() const;
    void showContentNow();
    void showNoContentNow();
    void showReadingMark();

    const FeedListTraits& m_traits;
    ScreenLog m_log;
    std::atomic<Turn> m_turn = 0;
    Turn m_storedTurn = 0; ///< turn of the newest fetch that brought a feed; main thread
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
    ReadingMark m_readingMark;
    ReadingWatch m_readingWatch;
    ListShare m_share{[this] { return shareName(); }, [this] { return shownTable(); }};
};

} // namespace lodestar
