// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Views/Common/FlatListViewController.h"

#include <cstdint>
#include <vector>

namespace lodestar
{

/// The serviceable events of a console, in the order of the feed. A row leads to the event's facts.
class SEListViewController : public lodestar::FlatListViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")

public:
    SEListViewController();

    const std::vector<XMLElement>& SEList() const { return elements(); }
    /// What the search found, as rows of `SEList`.
    const std::vector<std::uint32_t>& filteredSEList() const { return filteredElements(); }

    /// Appends the events of the stored feed and shows the content. Any thread.
    void createSEList() { createSEList(turn()); }

    QVariant cellForRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;
    /// Opens the event that the stored feed has at the row's index, whichever table was tapped.
    void didSelectRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;

protected:
    RXPromise<std::string> showFeed(const XMLElement& feedRoot, Turn turn) override;

private:
    void createSEList(Turn turn);
};

} // namespace lodestar
