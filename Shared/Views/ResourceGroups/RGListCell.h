// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Views/Common/CellViews.h"

#include <QCoreApplication>

#include <string_view>

namespace lodestar
{

/// The number of a group's resources in each state.
struct RGStateCounts {
    int good = 0;
    int off = 0;
    int alert = 0;
    int error = 0;

    /// Counts a state by its exact wording; any other text is not counted.
    void add(std::string_view state);
    friend bool operator==(const RGStateCounts&, const RGStateCounts&) = default;
};

/// One row of the resource-group list, as a value: tag, name, number of resources, and their number in each state.
class RGListCell
{
    Q_GADGET
    Q_DECLARE_TR_FUNCTIONS(lodestar::RGListCell)
    QML_VALUE_TYPE(rgListCell)
    Q_PROPERTY(lodestar::CellLabel groupNameLabel READ groupNameLabel)
    Q_PROPERTY(lodestar::CellLabel goodCountLabel READ goodCountLabel)
    Q_PROPERTY(lodestar::CellLabel offCountLabel READ offCountLabel)
    Q_PROPERTY(lodestar::CellLabel alertCountLabel READ alertCountLabel)
    Q_PROPERTY(lodestar::CellLabel errorCountLabel READ errorCountLabel)
    Q_PROPERTY(lodestar::CellLabel resourceCountLabel READ resourceCountLabel)
    Q_PROPERTY(lodestar::CellImage groupTag READ groupTag)
    Q_PROPERTY(bool updating READ isUpdating)
    Q_PROPERTY(QString accessibleText READ accessibleText)

public:
    void setGroupName(const QString& name) { m_groupNameLabel.text = name; }
    /// Sets the tag's image. A colour without a tag leaves the image as it was.
    void setGroupColor(std::string_view name);
    void setStateCounts(const RGStateCounts& counts);
    void setResourceCount(int count);
    /// Whether the states are still being fetched, so that there are no counts yet.
    void setUpdating(bool updating) { m_updating = updating; }

    const CellLabel& groupNameLabel() const { return m_groupNameLabel; }
    const CellLabel& goodCountLabel() const { return m_goodCountLabel; }
    const CellLabel& offCountLabel() const { return m_offCountLabel; }
    const CellLabel& alertCountLabel() const { return m_alertCountLabel; }
    const CellLabel& errorCountLabel() const { return m_errorCountLabel; }
    const CellLabel& resourceCountLabel() const { return m_resourceCountLabel; }
    const CellImage& groupTag() const { return m_groupTag; }
    bool isUpdating() const { return m_updating; }
    /// The row's text for screen readers, as one sentence: name, colour, counts.
    QString accessibleText() const;

private:
    CellLabel m_groupNameLabel;
    CellLabel m_goodCountLabel;
    CellLabel m_offCountLabel;
    CellLabel m_alertCountLabel;
    CellLabel m_errorCountLabel;
    CellLabel m_resourceCountLabel;
    CellImage m_groupTag;
    bool m_updating = false;
};

} // namespace lodestar
