// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/Menu.h"
#include "Views/Common/FlatListViewController.h"

#include <cstdint>
#include <vector>

namespace lodestar
{

class ManagedSystem;

/// The managed systems of a console, in the order of the feed, with a state text and badges. A row opens an action
/// sheet with what can be seen of the system; swiping it, a long press or the menu key offer its menu screen.
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
    /// What the search found, as rows of `MSList`.
    const std::vector<std::uint32_t>& filteredMSList() const { return filteredElements(); }

    /// Appends the systems of the stored feed. Any thread.
    void createMSList() { createMSList(turn()); }

    QVariant cellForRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;
    void didSelectRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;
    /// A swiped row's button. Always true: the row closes again.
    bool tappedButtonAtIndex(TableKind tableView, int row, int index);
    Q_INVOKABLE bool swipeTableCell(bool inSearchResults, int row, int tappedButtonAtIndex);

protected:
    RXPromise<std::string> showFeed(const XMLElement& feedRoot, Turn turn) override;

private:
    void createMSList(Turn turn);
    void openItem(int index, const ManagedSystem& system);

    MenuOutlet m_actionSheet;
};

} // namespace lodestar
