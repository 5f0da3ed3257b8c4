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
struct RGListCell {
    Q_GADGET
    Q_DECLARE_TR_FUNCTIONS(lodestar::RGListCell)
    QML_VALUE_TYPE(rgListCell)
    Q_PROPERTY(lodestar::CellLabel groupNameLabel MEMBER groupNameLabel)
    Q_PROPERTY(lodestar::CellLabel goodCountLabel MEMBER goodCountLabel)
    Q_PROPERTY(lodestar::CellLabel offCountLabel MEMBER offCountLabel)
    Q_PROPERTY(lodestar::CellLabel alertCountLabel MEMBER alertCountLabel)
    Q_PROPERTY(lodestar::CellLabel errorCountLabel MEMBER errorCountLabel)
    Q_PROPERTY(lodestar::CellLabel resourceCountLabel MEMBER resourceCountLabel)
    Q_PROPERTY(lodestar::CellImage groupTag MEMBER groupTag)
    Q_PROPERTY(bool updating MEMBER updating)
    Q_PROPERTY(QString accessibleText READ accessibleText)

public:
    /// Sets the tag's image. A colour without a tag leaves the image as it was.
    void setGroupColor(std::string_view name);
    void setStateCounts(const RGStateCounts& counts);
    void setResourceCount(int count);
    /// The row's text for screen readers, as one sentence: name, colour, counts.
    QString accessibleText() const;

    CellLabel groupNameLabel;
    CellLabel goodCountLabel;
    CellLabel offCountLabel;
    CellLabel alertCountLabel;
    CellLabel errorCountLabel;
    CellLabel resourceCountLabel;
    CellImage groupTag;
    bool updating = false; ///< whether the states are still being fetched, so that there are no counts yet
};

} // namespace lodestar
