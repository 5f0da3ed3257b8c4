// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/Table.h"
#include "Kit/Core/ViewController.h"

#include <functional>
#include <vector>

namespace lodestar
{

/// A row of a menu screen as a value.
struct MenuCell {
    Q_GADGET
    QML_VALUE_TYPE(menuCell)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString imageName MEMBER imageName)
    Q_PROPERTY(QString detail MEMBER detail)
    Q_PROPERTY(bool rests MEMBER rests)

public:
    QString title;
    QString imageName;
    QString detail; ///< a count or a note at the row's end
    bool rests = false;

    friend bool operator==(const MenuCell&, const MenuCell&) = default;
};

/// A fixed menu that leads to other scenes. A row is greyed if the storyboard does not have its scene. Rows are made
/// anew each time the screen appears, because their counts may have changed. The scene is MenuScene. Main thread.
class MenuTableViewController : public lodestar::ViewController, public TableDataSource
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")
    Q_PROPERTY(lodestar::TableOutlet* tableView READ tableView CONSTANT)

public:
    struct Row {
        QString title;
        QString imageName;
        std::function<void()> open; ///< none for a row that only rests
        QString detail{};
    };
    using Sections = std::vector<std::vector<Row>>;

    MenuTableViewController();

    TableOutlet* tableView() { return &m_tableView; }
    int numberOfSections(TableKind tableView) const override;
    int numberOfRowsInSection(TableKind tableView, int section) const override;
    QVariant cellForRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;
    /// Opens the row's scene, if it has one, and deselects the row.
    void didSelectRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;

protected:
    void viewDidLoad() override;
    void viewDidAppear() override;
    virtual Sections makeSections() const = 0;

private:
    void reload();
    const Row* rowAt(IndexPath indexPath) const;

    TableOutlet m_tableView;
    Sections m_sections;
};

} // namespace lodestar
