// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Views/Common/FlatListViewController.h"

#include <cstdint>
#include <vector>

namespace lodestar
{

/// The serviceable events of a console, in the order of the feed. A row opens the event's facts.
class SEListViewController : public lodestar::FlatListViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")

public:
    SEListViewController();

    const std::vector<XMLElement>& SEList() const { return elements(); }
    /// The search results, as rows of `SEList`.
    const std::vector<std::uint32_t>& filteredSEList() const { return filteredElements(); }

    /// Appends the events and shows the content.
    void createSEList(ElementList events);

    QVariant cellForRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;
    /// Opens the event at the row's index in the stored feed, whichever table was tapped.
    void didSelectRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;

protected:
    void adopt(ElementList rows, const Feed& feed) override;
};

} // namespace lodestar
