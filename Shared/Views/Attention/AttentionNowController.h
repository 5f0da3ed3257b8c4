// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Attention.h"
#include "Kit/Core/Outlets.h"
#include "Kit/Core/Table.h"
#include "Platform/NotificationCenter.h"
#include "Views/Attention/AttentionSegment.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <set>

namespace lodestar
{

/// What needs attention now: a summary, and what is wrong in bands or by console. It follows the fleet while it is
/// seen; rows that somebody touches stay until they are let go. Main thread.
class AttentionNowController : public lodestar::AttentionSegment, public TableDataSource
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by controllers")
    Q_PROPERTY(lodestar::TableOutlet* tableView READ tableView CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* summaryLabel READ summaryLabel CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* completenessLabel READ completenessLabel CONSTANT)
    Q_PROPERTY(lodestar::ImageOutlet* completenessMark READ completenessMark CONSTANT)
    Q_PROPERTY(lodestar::IndicatorOutlet* updatingIndicator READ updatingIndicator CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* filterLabel READ filterLabel CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* notShownLabel READ notShownLabel CONSTANT)
    Q_PROPERTY(lodestar::ImageOutlet* noDataImage READ noDataImage CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* noDataHeadline READ noDataHeadline CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* noDataLabel READ noDataLabel CONSTANT)
    Q_PROPERTY(QString announcement READ announcement NOTIFY announced)
    Q_PROPERTY(Look look READ look NOTIFY lookChanged)

public:
    enum class Look {
        Waiting, ///< the first picture is not made yet
        Rows,    ///< with a summary above
        Unknown, ///< nothing known is wrong, but not everything is known
        Clear,   ///< nothing is wrong
        NoConsoles
    };
    Q_ENUM(Look)

    AttentionNowController();

    TableOutlet* tableView() { return &m_tableView; }
    LabelOutlet* summaryLabel() { return &m_summaryLabel; }
    /// How many consoles answered, and when. Its state is Alert unless all did, lately.
    LabelOutlet* completenessLabel() { return &m_completenessLabel; }
    ImageOutlet* completenessMark() { return &m_completenessMark; }
    IndicatorOutlet* updatingIndicator() { return &m_updatingIndicator; }
    LabelOutlet* filterLabel() { return &m_filterLabel; }
    LabelOutlet* notShownLabel() { return &m_notShownLabel; }
    ImageOutlet* noDataImage() { return &m_noDataImage; }
    LabelOutlet* noDataHeadline() { return &m_noDataHeadline; }
    LabelOutlet* noDataLabel() { return &m_noDataLabel; }
    /// What a screen reader says when a reading found new errors.
    const QString& announcement() const { return m_announcement; }
    Look look() const { return m_look; }

    Table shownTable() const override;
    int numberOfSections(TableKind tableView) const override;
    int numberOfRowsInSection(TableKind tableView, int section) const override;
    std::optional<QString> titleForHeaderInSection(TableKind tableView, int section) const override;
    QString detailForHeaderInSection(TableKind tableView, int section) const override;
    QString footerForSection(TableKind tableView, int section) const override;
    std::size_t keyForRowAtIndexPath(TableKind tableView, IndexPath indexPath) const override;
    QVariant cellForRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;
    void didSelectRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;
    /// Handles a swiped row's "Expected".
    Q_INVOKABLE void expectStop(int section, int row);

Q_SIGNALS:
    void announced();
    void lookChanged();

protected:
    void viewDidLoad() override;
    void viewDidAppear() override;
    void viewDidDisappear() override;
    void filterDidChange() override;

private:
    const FindingGroup& group(int section) const { return m_view.groups[static_cast<std::size_t>(section)]; }
    bool groupsByConsole() const;
    bool showsEveryOfflineConsole() const;
    /// The row, or none for the row that shows all.
    const FindingRow* rowAt(IndexPath indexPath) const;
    void openRow(const FindingRow& row);
    void follow();
    /// Makes the rows of the picture, here or elsewhere, and adopts both together.
    void rebuild(const std::shared_ptr<const Attention::Picture>& picture);
    void adopt(std::shared_ptr<const Attention::Picture> picture, FindingView view);
    void showTexts();
    void showNothing();
    Look lookNow() const;
    bool onlyConsolesAreListed() const;
    void announceNewErrors();

    std::shared_ptr<const Attention::Picture> m_picture;
    FindingView m_view;
    int m_turn = 0;                   ///< of the last rebuilding, the only one that is shown
    std::set<std::uintptr_t> m_whole; ///< groups of which a person wanted to see all
    /// Keys of the errors and of consoles that do not answer, at the last reading that ended.
    std::optional<std::set<std::size_t>> m_known;

    TableOutlet m_tableView;
    LabelOutlet m_summaryLabel;
    LabelOutlet m_completenessLabel;
    ImageOutlet m_completenessMark;
    IndicatorOutlet m_updatingIndicator;
    LabelOutlet m_filterLabel;
    LabelOutlet m_notShownLabel;
    ImageOutlet m_noDataImage;
    LabelOutlet m_noDataHeadline;
    LabelOutlet m_noDataLabel;
    QString m_announcement;
    Look m_look = Look::Waiting;
    NotificationCenter::Observation m_observation;
    QMetaObject::Connection m_clock;
};

} // namespace lodestar
