// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/FleetSearchKeeper.h"
#include "Kit/Core/Table.h"
#include "Kit/Core/ViewController.h"
#include "Views/Common/ListShare.h"
#include "Views/Common/TitleHeader.h"

#include <memory>
#include <string>
#include <vector>

namespace lodestar
{

/// All objects of a kind that a text finds. The rows follow the consoles. Main thread.
class FindListController : public lodestar::ViewController, public TableDataSource
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by controllers")
    Q_PROPERTY(lodestar::TitleHeader* header READ header CONSTANT)
    Q_PROPERTY(lodestar::TableOutlet* tableView READ tableView CONSTANT)
    Q_PROPERTY(lodestar::ListShare* share READ share CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* noDataHeadline READ noDataHeadline CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* noDataLabel READ noDataLabel CONSTANT)

public:
    /// `kind` is an index into the searched kinds.
    FindListController(std::size_t kind, QString text);

    TitleHeader* header() { return &m_header; }
    TableOutlet* tableView() { return &m_tableView; }
    ListShare* share() { return &m_share; }
    LabelOutlet* noDataHeadline() { return &m_noDataHeadline; }
    LabelOutlet* noDataLabel() { return &m_noDataLabel; }

    int numberOfRowsInSection(TableKind tableView, int section) const override;
    QString footerForSection(TableKind tableView, int section) const override;
    QVariant cellForRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;
    void didSelectRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;

protected:
    void viewDidLoad() override;
    void viewDidAppear() override;

private:
    void update();
    QString shareName() const;
    Table shownTable() const;

    const std::size_t m_kind;
    const QString m_text;
    const std::string m_wanted;
    TitleHeader m_header;
    TableOutlet m_tableView;
    LabelOutlet m_noDataHeadline;
    LabelOutlet m_noDataLabel;
    std::shared_ptr<FleetSearchKeeper> m_keeper;
    std::shared_ptr<const FleetSearch> m_search; ///< what the rows show; null until the first one is made
    std::vector<FoundObject> m_found;
    NotificationCenter::Observation m_observation;
    ListShare m_share{[this] { return shareName(); }, [this] { return shownTable(); }};
};

} // namespace lodestar
