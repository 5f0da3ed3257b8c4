// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/FleetSearchKeeper.h"
#include "Kit/Core/Bars.h"
#include "Kit/Core/Table.h"
#include "Kit/Core/ViewController.h"

#include <memory>
#include <string>
#include <vector>

namespace lodestar
{

/// Finds things on all consoles in what was read of them; nothing is asked of a console. Without a text it shows the
/// recent ones and what can be found. Rows follow the consoles.
class FindViewController : public lodestar::ViewController, public TableDataSource
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by controllers")
    Q_PROPERTY(lodestar::SearchBarOutlet* searchBar READ searchBar CONSTANT)
    Q_PROPERTY(lodestar::TableOutlet* tableView READ tableView CONSTANT)
    Q_PROPERTY(lodestar::ViewOutlet* clearButton READ clearButton CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* noDataHeadline READ noDataHeadline CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* noDataLabel READ noDataLabel CONSTANT)

public:
    /// Rows of a kind that are shown before the one that leads to all of them.
    static constexpr std::size_t mostRows = 4;

    FindViewController();

    SearchBarOutlet* searchBar() { return &m_searchBar; }
    TableOutlet* tableView() { return &m_tableView; }
    /// Stands beside the heading of the recent texts; hidden with them.
    ViewOutlet* clearButton() { return &m_clearButton; }
    LabelOutlet* noDataHeadline() { return &m_noDataHeadline; }
    LabelOutlet* noDataLabel() { return &m_noDataLabel; }

    /// Takes the text, unless it is empty, and the keyboard.
    void look(const QString& text);
    /// Says that what was found is of use, so that the text is kept among the recent ones.
    Q_INVOKABLE void keepText();
    Q_INVOKABLE void clearRecents();

    int numberOfSections(TableKind tableView) const override;
    int numberOfRowsInSection(TableKind tableView, int section) const override;
    std::optional<QString> titleForHeaderInSection(TableKind tableView, int section) const override;
    QString detailForHeaderInSection(TableKind tableView, int section) const override;
    QString footerForSection(TableKind tableView, int section) const override;
    std::size_t keyForRowAtIndexPath(TableKind tableView, IndexPath indexPath) const override;
    QVariant cellForRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;
    void didSelectRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;

protected:
    void viewDidLoad() override;
    void viewDidAppear() override;

private:
    struct Recent {
        std::string text;
        QString count; ///< empty until it is known
    };
    /// The found objects of a kind.
    struct Kind {
        std::size_t kind;
        std::vector<FoundObject> found;
        int rows() const;
        bool isMore(int row) const { return row == static_cast<int>(mostRows); }
    };

    enum class Reload { AtOnce, Fading };
    void update(Reload reload);
    void updateRecents();
    void showLook();
    bool hasRecents() const { return !m_looksFor && !m_recents.empty(); }
    bool isRecentSection(int section) const { return hasRecents() && section == 0; }

    SearchBarOutlet m_searchBar;
    TableOutlet m_tableView;
    ViewOutlet m_clearButton;
    LabelOutlet m_noDataHeadline;
    LabelOutlet m_noDataLabel;
    std::shared_ptr<FleetSearchKeeper> m_keeper;
    std::shared_ptr<const FleetSearch> m_search; ///< what the rows show; null until the first one is made
    std::string m_wanted;                        ///< the text as it is looked for
    bool m_looksFor = false;                     ///< the rows are what was found, and not the recent texts
    std::vector<Kind> m_kinds;
    std::vector<Recent> m_recents;
    NotificationCenter::Observation m_observation;
};

} // namespace lodestar
