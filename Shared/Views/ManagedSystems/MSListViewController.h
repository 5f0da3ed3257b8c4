// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/Menu.h"
#include "Views/Common/FlatListViewController.h"

#include <cstdint>
#include <vector>

namespace lodestar
{

class ManagedSystem;

/// The managed systems of a console, in the order of the feed, with a state text and badges. A tap on a row opens an
/// action sheet with the system's screens; a swipe, a long press or the menu key offers the system's menu screen.
class MSListViewController : public lodestar::FlatListViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")
    Q_PROPERTY(lodestar::MenuOutlet* actionSheet READ actionSheet CONSTANT)

public:
    MSListViewController();

    MenuOutlet* actionSheet() { return &m_actionSheet; }
    const std::vector<XMLElement>& MSList() const { return elements(); }
    /// The search results, as rows of `MSList`.
    const std::vector<std::uint32_t>& filteredMSList() const { return filteredElements(); }

    /// Appends the systems of the stored feed.
    void createMSList() { createMSList(storedRows()); }

    QVariant cellForRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;
    void didSelectRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;
    /// Handles a button of a swiped row. Returns true always, so that the row closes.
    Q_INVOKABLE bool swipeTableCell(bool inSearchResults, int row, int tappedButtonAtIndex);

protected:
    void adopt(ElementList rows, const Feed& feed) override;

private:
    void createMSList(ElementList systems);
    void openItem(int index, const ManagedSystem& system);

    MenuOutlet m_actionSheet;
};

} // namespace lodestar
