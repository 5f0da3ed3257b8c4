// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/CellSteps.h"
#include "Kit/Core/Role.h"

#include <QAbstractListModel>
#include <QString>
#include <QVariant>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <optional>
#include <vector>

namespace lodestar
{

struct IndexPath {
    int section = 0;
    int row = 0;
    friend bool operator==(const IndexPath&, const IndexPath&) = default;
};

/// The table that asks: a screen's own table, or the table of its search results.
enum class TableKind { Main, SearchResults };

/// A cell that costs more than one blocking call: what is known at once, and the steps that complete it.
struct CellInSteps {
    QVariant cell;
    CellSteps::Step step;
};

/// Gives a table its content. A cell is a value (a Q_GADGET in a QVariant), made once each time a row is configured.
class TableDataSource
{
public:
    virtual ~TableDataSource() = default;
    virtual int numberOfSections(TableKind) const { return 1; }
    virtual int numberOfRowsInSection(TableKind tableView, int section) const = 0;
    /// Nothing means no header; an empty title means an empty header.
    virtual std::optional<QString> titleForHeaderInSection(TableKind, int /*section*/) const { return {}; }
    /// What stands at the header's end: a count, as a rule.
    virtual QString detailForHeaderInSection(TableKind, int /*section*/) const { return {}; }
    /// A second line below the header's title, which is larger then; empty for none.
    virtual QString noteForHeaderInSection(TableKind, int /*section*/) const { return {}; }
    /// A note below the section's last row; empty for none.
    virtual QString footerForSection(TableKind, int /*section*/) const { return {}; }
    /// What the row, or for row -1 the header, shows, as a number that no other row has: `reloadRows` finds rows again
    /// by it, and so does a row that is shown as chosen; 0 where rows are known by their places.
    virtual std::size_t keyForRowAtIndexPath(TableKind, IndexPath) const { return 0; }
    /// May block. Called once each time a row is configured.
    virtual QVariant cellForRowAtIndexPath(TableKind tableView, IndexPath indexPath) = 0;
    /// Replaces `cellForRowAtIndexPath` in a table that makes its cells in steps.
    virtual CellInSteps cellInStepsForRowAtIndexPath(TableKind, IndexPath) { return {}; }
    virtual void didSelectRowAtIndexPath(TableKind, IndexPath) {}
};

enum class RowAnimation { None, Left };

/// A table as QML sees it: one flat list of headers and rows. The model says what stands where; a drawn row asks for
/// its cell itself. The outlet is hidden and shown like any other.
class TableOutlet : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by controllers")
    Q_PROPERTY(bool hidden READ isHidden NOTIFY hiddenChanged)
    Q_PROPERTY(double separatorLeft READ separatorLeft NOTIFY separatorChanged)
    Q_PROPERTY(double separatorRight READ separatorRight NOTIFY separatorChanged)
    Q_PROPERTY(double rowHeight READ rowHeight NOTIFY rowHeightChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    Q_PROPERTY(int rows READ rows NOTIFY countChanged)
    Q_PROPERTY(bool makesCellsInSteps READ makesCellsInSteps CONSTANT)
    Q_PROPERTY(bool removalAnimated READ isRemovalAnimated NOTIFY removalAnimatedChanged)
    Q_PROPERTY(bool rowsFade READ doRowsFade NOTIFY rowsFadeChanged)
    Q_PROPERTY(bool touched READ isTouched WRITE setTouched NOTIFY touchedChanged)

public:
    enum Role {
        IsHeader = Qt::UserRole + 1,
        HeaderTitle,
        Section,
        Row, ///< -1 for a header
        FirstInSection,
        LastInSection,
        SectionHasHeader,
        HeaderDetail,
        HeaderNote,
        SectionFooter ///< empty but for the section's last row
    };

    TableOutlet(TableDataSource& source, TableKind kind, QObject* parent = nullptr);

    bool isHidden() const { return m_hidden; }
    void setHidden(bool hidden);
    double separatorLeft() const { return m_separatorLeft; }
    double separatorRight() const { return m_separatorRight; }
    void setSeparatorInset(double left, double right);
    double rowHeight() const { return m_rowHeight; }
    void setRowHeight(double height);
    /// `count` counts headers and rows, `rows` counts rows only.
    int count() const { return m_count; }
    int rows() const;
    /// Whether the rows removed last disappear with an animation.
    bool isRemovalAnimated() const { return m_removalAnimated; }

    /// With steps, drawn rows show at once what is known and are completed one after the other, with input and frames
    /// in between. Meant for sources whose cells ask the network; to be set before the table is drawn.
    void setMakesCellsInSteps(bool inSteps) { m_makesCellsInSteps = inSteps; }
    bool makesCellsInSteps() const { return m_makesCellsInSteps; }

    /// Asks the source for sections and row counts at once, and for cells when they are next drawn: several reloads in
    /// a row configure the visible rows once. A row that keeps its place keeps its delegate, so that an open swipe
    /// stays open. The cost depends on the number of sections, not of rows. May be called from any thread.
    void reloadData();
    /// Does the same, but rows that come and go fade where they stand, and the others keep their delegates: rows are
    /// found again by `keyForRowAtIndexPath`. The cost depends on the number of rows. Main thread.
    void reloadRows();
    /// What the source says that the row at the index shows; 0 for no such row.
    std::size_t keyAt(int index) const;
    /// The first row with the key; -1 for none. The cost depends on the number of rows.
    int indexOfKey(std::size_t key) const;
    /// Whether the rows that `reloadRows` inserts and removes fade.
    bool doRowsFade() const { return m_rowsFade; }
    /// Whether a finger, the mouse or an open swipe holds the rows, so that none may come or go. The drawn list writes
    /// this.
    bool isTouched() const { return m_touched; }
    void setTouched(bool touched);
    /// Calls the function once no row is touched, on the main thread: at once, or after the press or swipe that ends
    /// has done what it does to the row that it held. A later call replaces a function that still waits.
    void whenUntouched(std::function<void()> then);
    /// Removes a row that the source has dropped already. The rows below move up and are not configured again.
    void deleteRow(IndexPath indexPath, RowAnimation animation);

    /// Asks the source for a new cell. A drawn row calls this once when it comes into view and once for a change of the
    /// model that names no roles.
    QVariant configureCell(int index) const;
    CellInSteps configureCellInSteps(int index) const;
    CellSteps& cellSteps() { return m_cellSteps; }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// QML calls these functions; indexes are those of this flat list.
    Q_INVOKABLE bool isHeaderAt(int index) const;
    Q_INVOKABLE void select(int index);
    /// `editing` false closes every open swipe; true does nothing. `animated` plays no part.
    void setEditing(bool editing, bool animated);

Q_SIGNALS:
    void hiddenChanged();
    void separatorChanged();
    void rowHeightChanged();
    void countChanged();
    void closeSwipesRequested();
    /// The row should return to its unpressed look.
    void deselected(int index);
    void removalAnimatedChanged();
    void rowsFadeChanged();
    void touchedChanged();
    /// The source was asked anew; no row is selected any more.
    void reloaded();

public:
    void deselectRow(IndexPath indexPath);

private:
    struct SectionInfo {
        int start = 0; ///< flat index of the header, or of the first row when there is none
        int rows = 0;
        bool hasHeader = false;
        QString title;
        QString detail;
        QString note;
        QString footer;
    };
    std::vector<SectionInfo> askForShape(int& count) const;
    void reloadOnMain();
    std::vector<std::size_t> askForKeys() const;
    void didReload(int cellsKept);
    void announceCells();
    void doWhenUntouched();
    void setRemovalAnimated(bool animated);
    void setRowsFade(bool fade);
    std::optional<IndexPath> pathAt(int index) const;
    int flatIndex(IndexPath indexPath) const;

    TableDataSource& m_source;
    TableKind m_kind;
    std::vector<SectionInfo> m_sections;
    std::vector<std::size_t> m_keys; ///< of headers and rows, while `reloadRows` is used
    int m_count = 0;
    bool m_announcePending = false;
    bool m_removalAnimated = false;
    bool m_rowsFade = false;
    bool m_touched = false;
    std::function<void()> m_whenUntouched;
    bool m_hidden = false;
    bool m_makesCellsInSteps = false;
    CellSteps m_cellSteps;
    double m_separatorLeft = 0;
    double m_separatorRight = 0;
    double m_rowHeight = 44;
};

/// A pull-to-refresh control. QML calls `pull`, the controller calls `endRefreshing`.
class RefreshControl : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by controllers")
    Q_PROPERTY(bool refreshing READ isRefreshing NOTIFY refreshingChanged)

public:
    using QObject::QObject;
    bool isRefreshing() const { return m_refreshing; }
    Q_INVOKABLE void pull();
    void endRefreshing();

Q_SIGNALS:
    void refreshingChanged();
    /// The user pulled far enough and let go.
    void valueChanged();

private:
    bool m_refreshing = false;
};

/// A button that a swiped cell uncovers: a title, a picture by its resource name, or the title below the picture.
struct SwipeButton {
    Q_GADGET
    QML_VALUE_TYPE(swipeButton)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(lodestar::Role::Button role MEMBER role)
    Q_PROPERTY(QString imageName MEMBER imageName)
    Q_PROPERTY(QString spoken MEMBER spoken)
    Q_PROPERTY(bool captioned MEMBER captioned)

public:
    QString title;
    Role::Button role = Role::Button::Standard;
    QString imageName{};
    QString spoken{};       ///< what a screen reader says for a picture without a title
    bool captioned = false; ///< shows the title below the picture; otherwise the picture stands for the title
    friend bool operator==(const SwipeButton&, const SwipeButton&) = default;
};

} // namespace lodestar
