// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Attention.h"
#include "Fleet/FindingBands.h"
#include "Kit/Core/Table.h"
#include "Kit/Core/ViewController.h"
#include "Platform/NotificationCenter.h"
#include "Views/Common/ListShare.h"
#include "Views/Common/TitleHeader.h"

#include <cstddef>
#include <memory>
#include <set>
#include <vector>

namespace lodestar
{

/// The findings behind a folded row, one a row. They follow the fleet: one that is over leaves, one that comes back
/// comes back. Main thread.
class FoldedListController : public lodestar::ViewController, public TableDataSource
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by controllers")
    Q_PROPERTY(lodestar::TitleHeader* header READ header CONSTANT)
    Q_PROPERTY(lodestar::TableOutlet* tableView READ tableView CONSTANT)
    Q_PROPERTY(lodestar::ListShare* share READ share CONSTANT)

public:
    FoldedListController(std::shared_ptr<const Attention::Picture> picture, const FindingRow& row);

    TitleHeader* header() { return &m_header; }
    TableOutlet* tableView() { return &m_tableView; }
    ListShare* share() { return &m_share; }

    int numberOfRowsInSection(TableKind tableView, int section) const override;
    std::size_t keyForRowAtIndexPath(TableKind tableView, IndexPath indexPath) const override;
    QVariant cellForRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;
    void didSelectRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;
    Q_INVOKABLE void expectStop(int row);

protected:
    void viewDidLoad() override;
    void viewDidAppear() override;
    void viewDidDisappear() override;

private:
    Table shownTable() const;
    void follow();
    void adopt();

    std::shared_ptr<const Attention::Picture> m_picture;
    std::set<std::size_t> m_keys; ///< of the findings that the row held
    std::vector<FindingRow> m_rows;
    TitleHeader m_header;
    TableOutlet m_tableView;
    NotificationCenter::Observation m_observation;
    QMetaObject::Connection m_clock;
    ListShare m_share{[this] { return title(); }, [this] { return shownTable(); }};
};

} // namespace lodestar
