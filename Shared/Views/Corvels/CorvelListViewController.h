// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/Model/Corvel.h"
#include "Kit/Core/Menu.h"
#include "Kit/Core/Outlets.h"
#include "Kit/Core/PagedIntro.h"
#include "Kit/Core/SheetHostController.h"
#include "Kit/Core/SpansColumns.h"
#include "Kit/Core/Table.h"
#include "Platform/Error.h"
#include "Platform/NotificationCenter.h"
#include "Views/Common/ListShare.h"
#include "Views/Common/ReadingMark.h"
#include "Views/Common/ReadingWatch.h"
#include "Views/Corvels/CorvelListCell.h"

#include <functional>
#include <vector>

namespace lodestar
{

struct EditorInput;

/// The console list: every registered console with its version, address and health. It fetches from the consoles when
/// it loads and at every pull. Its rows are the records of the working list, in that order, in one section. Main
/// thread.
class CorvelListViewController : public lodestar::SheetHostController,
                                 public TableDataSource,
                                 public PagedIntroDelegate,
                                 public SpansColumns
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")
    Q_PROPERTY(lodestar::TableOutlet* tableView READ tableView CONSTANT)
    Q_PROPERTY(lodestar::RefreshControl* refreshControl READ refreshControl CONSTANT)
    Q_PROPERTY(lodestar::MenuOutlet* rowMenu READ rowMenu CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* countLabel READ countLabel CONSTANT)
    Q_PROPERTY(lodestar::ViewOutlet* nextSteps READ nextSteps CONSTANT)
    Q_PROPERTY(lodestar::ListShare* share READ share CONSTANT)
    Q_PROPERTY(int marksTurn READ marksTurn NOTIFY marksChanged)
    Q_PROPERTY(bool feedbackHidden READ isFeedbackHidden NOTIFY feedbackHiddenChanged)

public:
    /// Shows the intro tour over a screen and calls the list's `introDidFinish` at its end.
    using IntroPresenter = std::function<void(ViewController& over, std::weak_ptr<CorvelListViewController> delegate)>;
    /// Sets the presenter of the tour; without one, no tour is shown. Main thread, before the first list loads.
    static void setIntroPresenter(IntroPresenter presenter);

    CorvelListViewController();

    TableOutlet* tableView() { return &m_tableView; }
    RefreshControl* refreshControl() { return &m_refreshControl; }
    /// The menu of one row: Connection, Attention, Copy Address.
    MenuOutlet* rowMenu() { return &m_rowMenu; }
    ListShare* share() { return &m_share; }
    /// "6 consoles": how many a fleet sheet of the list holds. Empty when it would hold none.
    LabelOutlet* countLabel() { return &m_countLabel; }
    /// What to do next, below a list that has the demonstration console alone.
    ViewOutlet* nextSteps() { return &m_nextSteps; }
    bool viewHasAppearedOnce() const { return m_viewHasAppearedOnce; }
    /// Without consoles there is nothing to choose, and the first steps take the whole width.
    bool spansColumns() const override { return m_tableView.isHidden(); }

    /// Whether the feedback button is hidden. It is shown on devices that cannot be shaken, which is known only after
    /// the first frame.
    bool isFeedbackHidden() const;

    Q_INVOKABLE void addCorvel();
    Q_INVOKABLE void openSettings();
    Q_INVOKABLE void openFeedback();
    Q_INVOKABLE void openFleetSheet();
    /// Whether the working list has a demonstration console.
    static bool hasDemo();
    /// Adds the demonstration console to a list that has none, and asks it.
    Q_INVOKABLE void lookAtDemo();
    /// Adds the demonstration console, at most once per installation. The next save stores it.
    void addTestCorvel();
    /// Fetches all consoles of the list at the same time. Each result is shown when it arrives.
    void dataRefresh();
    /// Handles a pull to refresh: shows spinners in every row, then calls `dataRefresh`. The pull's control goes back
    /// at once.
    void refresh();
    void resetFetchData();
    void introDidFinish() override;

    int numberOfRowsInSection(TableKind tableView, int section) const override;
    QVariant cellForRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;
    void didSelectRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;
    /// Handles a swiped row's button on the right that was tapped or chosen by key. Returns true always, so that the
    /// row closes.
    Q_INVOKABLE bool swipeTableCell(int row, int tappedButtonAtIndex);
    /// Handles the swiped row's button on the left, which has nothing to do with the index of a button on the right.
    Q_INVOKABLE void openConnection(int row);
    Q_INVOKABLE void presentMenu(int row);

    /// How old the cell's console is, or what is missing of it. Asked again at each turn: a mark changes with time
    /// alone, and its row is not configured anew.
    Q_INVOKABLE lodestar::ReadingMark markOf(const lodestar::CorvelListCell& cell, int turn) const;
    int marksTurn() const { return m_marksTurn; }

    void hideModalView();
    /// Shows the rows, whether or not there were rows before.
    void showCorvels();
    void statusWillShow();
    void statusShouldHide();

Q_SIGNALS:
    void feedbackHiddenChanged();
    void marksChanged();

protected:
    void viewDidLoad() override;
    void viewDidAppear() override;
    void viewDidDisappear() override;
    double restingSheetHeight() const override;

private:
    static Table shownTable();
    void closeScreenOf(const CorvelRef& corvel) const;
    void observeNotifications();
    void refreshCorvel(const CorvelRef& corvel);
    void didRefreshCorvel(const CorvelRef& corvel);
    void didFailToRefreshCorvel(const CorvelRef& corvel, const Error& error);
    void presentEditor(EditorInput input);
    void showFleet();
    void showCount();

    TableOutlet m_tableView;
    MenuOutlet m_rowMenu;
    LabelOutlet m_countLabel;
    ViewOutlet m_nextSteps;
    int m_marksTurn = 0;
    bool m_readUnseen = false; ///< consoles were read while nobody saw the rows
    RefreshControl m_refreshControl;
    bool m_viewHasAppearedOnce = false;
    bool m_isRefreshedByHand = false; ///< while a pull asks the consoles
    std::vector<NotificationCenter::Observation> m_observations;
    ReadingWatch m_readingWatch;
    ListShare m_share{[this] { return title(); }, [] { return shownTable(); }};
};

/// Goes to the console list and adds the demonstration console there, if it has none.
void bringBackDemo(TabBarController& tabs);

} // namespace lodestar
