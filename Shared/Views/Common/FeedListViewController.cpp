// SPDX-License-Identifier: Apache-2.0
#include "Views/Common/FeedListViewController.h"

#include "Fleet/Attention.h"
#include "Fleet/ObjectTable.h"
#include "Fleet/Readings.h"
#include "Fleet/Registry.h"
#include "Inventory/Identity.h"
#include "Platform/Queues/DispatchQueue.h"
#include "Views/Common/AgeClock.h"
#include "Views/Common/CellText.h"
#include "Views/Common/FeedTimeStamp.h"
#include "Views/Common/RowKey.h"

#include <QCoreApplication>

#include <utility>

namespace lodestar
{

FeedListViewController::FeedListViewController(const FeedListTraits& traits)
    : m_traits(traits),
      m_log(traits.fileName),
      m_tableView(*this, TableKind::Main),
      m_searchResultsTableView(*this, TableKind::SearchResults)
{
    m_tableView.setHidden(true);
    m_fetchingActivityIndicator.startAnimating();
    m_noDataImage.setImageName(QString::fromLatin1(traits.noDataImage));
    m_noDataLabel.setText(translated(traits.noDataText));
    if (traits.noDataHeadline != nullptr) {
        m_noDataHeadline.setText(translated(traits.noDataHeadline));
    }
}

QString FeedListViewController::translated(const char* text) const
{
    return QCoreApplication::translate("FeedListViewController", text);
}

std::size_t FeedListViewController::keyForRowAtIndexPath(TableKind tableView, IndexPath indexPath) const
{
    const XMLElement element = indexPath.row < 0 ? XMLElement() : elementOfRow(tableView, indexPath);
    const std::string identity = element ? identityOfObject(element, type()) : std::string();
    return identity.empty() ? 0 : rowKey(identity);
}

QString FeedListViewController::emptyText() const
{
    return translated(m_traits.emptyText);
}

void FeedListViewController::viewDidLoad()
{
    m_log.write(m_traits.instantiationLine, "viewDidLoad", std::string(m_log.className()) + " instantiation");
    connect(&m_refreshControl, &RefreshControl::valueChanged, this, &FeedListViewController::refreshTable);
    connect(&m_searchBar, &SearchBarOutlet::textChanged, this, [this] {
        if (m_searchBar.isActive() && shouldReloadTableForSearchString(m_searchBar.text())) {
            m_searchResultsTableView.reloadData();
        }
    });
    for (TableOutlet* table : {&m_tableView, &m_searchResultsTableView}) {
        table->setRowHeight(m_traits.rowHeight);
    }
    m_tableView.setSeparatorInset(m_traits.separators.left, m_traits.separators.right);
    m_searchResultsTableView.setSeparatorInset(m_traits.resultSeparators.left, m_traits.resultSeparators.right);
    for (ViewOutlet* view : std::initializer_list<ViewOutlet*>{&m_noDataImage, &m_noDataLabel, &m_noDataHeadline}) {
        view->setHidden(true);
    }
    setCustomNavigationBar();
    setHeaderTitle(translated(m_traits.title), tr("updating..."));
    setBackTitle(QStringLiteral(""));
    emptyLists();
    DispatchQueue::globalBackground().async(
        [screen = self<FeedListViewController>(), turn = turn()] { screen->fetchFeed(turn); });
}

void FeedListViewController::viewDidAppear()
{
    m_readingWatch.begin([this] { showReadingMark(); });
}

void FeedListViewController::viewDidDisappear()
{
    m_readingWatch.end();
}

QString FeedListViewController::consoleName() const
{
    return corvel() ? textOf(corvel()->name()) : QString();
}

QString FeedListViewController::shareName() const
{
    //: The name of a file: what is listed, such as "Managed Systems", and a console's name
    return tr("%1, %2").arg(translated(m_traits.title), consoleName());
}

Table FeedListViewController::shownTable() const
{
    const bool isSearched = m_searchBar.isActive() && !m_searchBar.text().isEmpty();
    return corvel() ? tableOfElements(type(), snapshotOf(corvel()),
                                      elementsOfTable(isSearched ? TableKind::SearchResults : TableKind::Main))
                    : Table();
}

void FeedListViewController::showReadingMark()
{
    // A console that was deleted meanwhile has no reading any more; its list keeps the mark that it has.
    if (!corvel() || !isRegistered(corvel())) {
        return;
    }
    ReadingMark mark = markOfFeed(*Readings::shared().of(*corvel()), type(), AgeClock::now());
    if (std::exchange(m_readingMark, std::move(mark)) != m_readingMark) {
        Q_EMIT readingMarkChanged();
    }
}

Feed FeedListViewController::feed() const
{
    return corvel() ? feedOfType(*corvel(), m_traits.type) : Feed::notAvailable();
}

void FeedListViewController::fetchFeed(Turn turn)
{
    if (corvel() && !corvel()->completedFetch) {
        fetchNewRESTData();
        return;
    }
    const Feed stored = feed();
    if (stored.isNA()) {
        UINoContent();
        return;
    }
    showFeed(stored, turn, Source::Record);
}

RXPromise<std::string> FeedListViewController::fetchNewRESTData()
{
    return fetchAfresh(m_traits.newDataFetch);
}

RXPromise<std::string> FeedListViewController::fetchAfresh(const FeedFetch& fetch)
{
    // The promise keeps the screen until the feed is stored, even when the screen was closed.
    const auto screen = self<FeedListViewController>();
    MainQueue::shared().run([screen] { screen->emptyLists(); });
    const Turn turn = ++m_turn;
    return fetchFeedWithStoredKey(corvel(), type())
        .thenOnMain([screen, turn](const XMLElement& feedRoot) { return screen->storeAndShow(feedRoot, turn); },
                    [screen, turn, fetch](const Error& error) {
                        screen->m_log.writeError(fetch.line, fetch.selector, error);
                        if (screen->isLast(turn)) {
                            screen->UINoContent();
                        }
                        return error;
                    });
}

RXPromise<std::string> FeedListViewController::storeAndShow(const XMLElement& feedRoot, Turn turn)
{
    // A late answer to an older fetch must not replace a newer feed.
    if (turn > m_storedTurn) {
        m_storedTurn = turn;
        setFeedOfType(*corvel(), type(), Feed(feedRoot));
    }
    if (isLast(turn)) {
        return showFeed(Feed(feedRoot), turn, Source::Fetch);
    }
    RXPromise<std::string> overtaken;
    overtaken.fulfillWithValue("OK");
    return overtaken;
}

void FeedListViewController::parseTimeStampFromXML(const XMLElement& feedRoot)
{
    setHeaderTitle(translated(m_traits.title), feedTimeStamp(Feed(feedRoot)));
}

void FeedListViewController::refreshTable()
{
    UILoadingData();
    const RXPromise<std::string> fetched = fetchAfresh(m_traits.pullFetch);
    if (m_traits.pullEnds == PullEnds::AtOnce) {
        m_refreshControl.endRefreshing();
        return;
    }
    const auto screen = self<FeedListViewController>();
    fetched.thenOnMain([screen](const std::string&) { screen->m_refreshControl.endRefreshing(); },
                       [screen](const Error&) { screen->m_refreshControl.endRefreshing(); });
}

void FeedListViewController::refreshFromButton()
{
    UILoadingData();
    fetchAfresh(m_traits.buttonFetch);
}

void FeedListViewController::UILoadingData()
{
    MainQueue::shared().async([screen = self<FeedListViewController>()] {
        screen->m_tableView.setHidden(true);
        screen->m_noDataLabel.setHidden(true);
        screen->m_noDataHeadline.setHidden(true);
        screen->m_noDataImage.setHidden(true);
        screen->m_fetchingActivityIndicator.startAnimating();
    });
}

void FeedListViewController::UIShowContent()
{
    MainQueue::shared().async([screen = self<FeedListViewController>(), turn = turn()] {
        if (screen->isLast(turn)) {
            screen->showContentNow();
        }
    });
}

void FeedListViewController::UINoContent()
{
    MainQueue::shared().async([screen = self<FeedListViewController>()] { screen->showNoContentNow(); });
}

void FeedListViewController::showContentNow()
{
    m_noDataLabel.setHidden(true);
    m_noDataImage.setHidden(true);
    m_fetchingActivityIndicator.stopAnimating();
    m_tableView.setHidden(false);
    m_tableView.reloadData();
    // A search that is open during a new fetch is repeated in the new feed.
    if (m_searchBar.isActive() && shouldReloadTableForSearchString(m_searchBar.text())) {
        m_searchResultsTableView.reloadData();
    }
    if (m_traits.searchable) {
        m_rightBarButton.setItem(BarButtonOutlet::SystemItem::Search, [this] { showSearchBar(); });
    } else {
        m_rightBarButton.setItem(BarButtonOutlet::SystemItem::None, {});
    }
}

void FeedListViewController::showNoContentNow()
{
    m_rightBarButton.setEnabled(false);
    m_searchBar.cancel();
    setHeaderTitle(translated(m_traits.title), QString());
    m_tableView.setHidden(true);
    m_fetchingActivityIndicator.stopAnimating();
    m_noDataLabel.setHidden(false);
    m_noDataHeadline.setHidden(false);
    m_noDataImage.setHidden(false);
    m_rightBarButton.setItem(BarButtonOutlet::SystemItem::Refresh, [this] { refreshFromButton(); });
}

bool FeedListViewController::shouldReloadTableForSearchString(const QString& searchString)
{
    filterContentForSearchText(searchString,
                               SearchBarOutlet::scopeButtonTitles().at(SearchBarOutlet::selectedScopeButtonIndex()));
    return true;
}

void FeedListViewController::showSearchBar()
{
    m_searchBar.becomeFirstResponder();
}

QString FeedListViewController::matchFor(TableKind tableView) const
{
    return tableView == TableKind::SearchResults ? m_searchBar.text() : QString();
}

} // namespace lodestar
