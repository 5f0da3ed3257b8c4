// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/Model/Corvel.h"
#include "Kit/Core/PagedIntro.h"
#include "Kit/Core/SheetHostController.h"
#include "Kit/Core/Table.h"
#include "Platform/Error.h"
#include "Platform/NotificationCenter.h"

#include <functional>
#include <vector>

namespace lodestar
{

class DeltaCorvelViewController;

/// The console list: every registered console with its version, address and health, refreshed from the consoles on
/// load and on pull. Its rows are the working list's records in list order, one section. Main thread.
class CorvelListViewController : public lodestar::SheetHostController, public TableDataSource, public PagedIntroDelegate
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")
    Q_PROPERTY(lodestar::TableOutlet* tableView READ tableView CONSTANT)
    Q_PROPERTY(lodestar::RefreshControl* refreshControl READ refreshControl CONSTANT)
    Q_PROPERTY(bool settingsHidden READ isSettingsHidden CONSTANT)
    Q_PROPERTY(bool feedbackHidden READ isFeedbackHidden NOTIFY feedbackHiddenChanged)

public:
    enum class FromExpansion { No, Yes };
    enum class SwipeDirection { LeftToRight, RightToLeft };

    /// Shows the intro tour over a screen and calls the list's `introDidFinish` when it is over.
    using IntroPresenter = std::function<void(ViewController& over, std::weak_ptr<CorvelListViewController> delegate)>;
    /// Names the tour; without one none is shown. Main thread, before the first list loads.
    static void setIntroPresenter(IntroPresenter presenter);

    CorvelListViewController();

    TableOutlet* tableView() { return &m_tableView; }
    RefreshControl* refreshControl() { return &m_refreshControl; }
    bool viewHasAppearedOnce() const { return m_viewHasAppearedOnce; }
    /// The settings button is not there while the storyboard has no settings.
    bool isSettingsHidden() const;

    /// The feedback button is there on devices that are not shaken. Whether this one is shows after the first frame.
    bool isFeedbackHidden() const;

    Q_INVOKABLE void addCorvel();
    Q_INVOKABLE void openSettings();
    Q_INVOKABLE void openFeedback();
    /// Seeds the demonstration console, at most once an installation. It is stored with the next save.
    void addTestCorvel();
    /// Fetches every console of the list at once. Each result is drawn as it comes.
    void dataRefresh();
    /// The pull: every row back to its spinners, then `dataRefresh`. The control ends at once.
    void refresh();
    void resetFetchData();
    void introDidFinish() override;

    int numberOfRowsInSection(TableKind tableView, int section) const override;
    QVariant cellForRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;
    void didSelectRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;
    /// A swiped row's button. Always true: the row closes again.
    bool tappedButtonAtIndex(int row, int index, SwipeDirection direction, FromExpansion fromExpansion);
    /// The same for a button on the right that was tapped or reached by key.
    Q_INVOKABLE bool swipeTableCell(int row, int tappedButtonAtIndex);

    void hideModalView();
    /// The rows, whether or not there were any before.
    void showCorvels();
    void statusWillShow();
    void statusShouldHide();

Q_SIGNALS:
    void feedbackHiddenChanged();

protected:
    void viewDidLoad() override;
    double restingSheetHeight() const override;

private:
    void observeNotifications();
    void refreshCorvel(const CorvelRef& corvel);
    void didRefreshCorvel(const CorvelRef& corvel);
    void didFailToRefreshCorvel(const CorvelRef& corvel, const Error& error);
    void deleteCorvelAtIndex(std::size_t index);
    void editCorvelAtIndex(std::size_t index);
    void presentEditor(const std::shared_ptr<DeltaCorvelViewController>& editor);

    TableOutlet m_tableView;
    RefreshControl m_refreshControl;
    bool m_viewHasAppearedOnce = false;
    std::vector<NotificationCenter::Observation> m_observations;
};

} // namespace lodestar
