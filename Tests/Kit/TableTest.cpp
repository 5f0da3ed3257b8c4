// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/Table.h"

#include "Kit/Core/CellHost.h"
#include "Platform/Queues/MainQueue.h"

#include <QQmlEngine>
#include <QSignalSpy>
#include <gmock/gmock.h>

#include <thread>

namespace lodestar
{

namespace
{

using testing::ElementsAre;

class Source : public TableDataSource
{
public:
    int numberOfSections(TableKind) const override { return static_cast<int>(rows.size()); }
    int numberOfRowsInSection(TableKind, int section) const override
    {
        ++asked;
        return rows[static_cast<std::size_t>(section)];
    }
    std::optional<QString> titleForHeaderInSection(TableKind, int section) const override
    {
        return titles[static_cast<std::size_t>(section)];
    }
    QVariant cellForRowAtIndexPath(TableKind, IndexPath indexPath) override
    {
        ++configured;
        return QString("%1.%2").arg(indexPath.section).arg(indexPath.row);
    }
    void didSelectRowAtIndexPath(TableKind, IndexPath indexPath) override { selected.push_back(indexPath); }
    std::size_t keyForRowAtIndexPath(TableKind, IndexPath indexPath) const override
    {
        return keys[static_cast<std::size_t>(indexPath.section)][static_cast<std::size_t>(indexPath.row + 1)];
    }

    std::vector<int> rows{1};
    std::vector<std::optional<QString>> titles{std::nullopt};
    mutable int asked = 0;
    int configured = 0;
    std::vector<IndexPath> selected;
    std::vector<std::vector<std::size_t>> keys; ///< of each section's header and rows
};

class TableTest : public testing::Test
{
protected:
    void reload(std::vector<int> rows)
    {
        source.rows = std::move(rows);
        table.reloadData();
    }
    /// The list as text: headers in brackets, rows by their cell, f and l for first and last.
    std::vector<std::string> shown() const
    {
        std::vector<std::string> lines;
        for (int row = 0; row < table.rowCount(); ++row) {
            const auto read = [&](int role) { return table.data(table.index(row), role); };
            const std::string cell = table.configureCell(row).toString().toStdString();
            lines.push_back(read(TableOutlet::IsHeader).toBool()
                                ? "[" + read(TableOutlet::HeaderTitle).toString().toStdString() + "]" + cell
                                : cell + (read(TableOutlet::FirstInSection).toBool() ? "f" : "") +
                                      (read(TableOutlet::LastInSection).toBool() ? "l" : ""));
        }
        return lines;
    }
    static void announce()
    {
        bool later = false;
        MainQueue::shared().async([&] { later = true; });
        EXPECT_TRUE(MainQueue::shared().runUntil([&] { return later; }, std::chrono::seconds(5)));
    }

    Source source;
    TableOutlet table{source, TableKind::Main};
    QSignalSpy inserted{&table, &QAbstractItemModel::rowsInserted};
    QSignalSpy removed{&table, &QAbstractItemModel::rowsRemoved};
    QSignalSpy changed{&table, &QAbstractItemModel::dataChanged};
};

} // namespace

TEST_F(TableTest, SectionsBecomeOneListWithHeadersEmptyAndEqualOnesIncluded)
{
    source.titles = {"A", "A", std::nullopt, std::nullopt, ""};
    EXPECT_EQ(source.asked, 0);
    reload({2, 0, 0, 1, 0});
    EXPECT_THAT(shown(), ElementsAre("[A]", "0.0f", "0.1l", "[A]", "3.0fl", "[]"));

    for (int index = -1; index <= table.count(); ++index) {
        table.select(index);
    }
    EXPECT_THAT(source.selected, ElementsAre(IndexPath{0, 0}, IndexPath{0, 1}, IndexPath{3, 0}));
    QSignalSpy deselected(&table, &TableOutlet::deselected);
    table.deselectRow({3, 0});
    table.deselectRow({2, 0});
    ASSERT_EQ(deselected.count(), 1);
    EXPECT_EQ(deselected[0][0], 4);
}

TEST_F(TableTest, KeyedReloadsInsertAndRemoveWhatCameAndWentAndTellOfItStepByStep)
{
    // What a view knows that only listens to the signals: keys of the rows that it has, 0 for those that came.
    std::vector<std::size_t> view;
    QObject::connect(&table, &QAbstractItemModel::rowsInserted, [&](const QModelIndex&, int first, int last) {
        view.insert(view.begin() + first, static_cast<std::size_t>(last - first + 1), 0);
        EXPECT_EQ(table.rowCount(), static_cast<int>(view.size()));
        table.configureCell(last); // A view may ask at once.
    });
    QObject::connect(&table, &QAbstractItemModel::rowsRemoved, [&](const QModelIndex&, int first, int last) {
        view.erase(view.begin() + first, view.begin() + last + 1);
        EXPECT_EQ(table.rowCount(), static_cast<int>(view.size()));
    });
    const auto show = [&](std::vector<std::vector<std::size_t>> keys) {
        source.keys = std::move(keys);
        source.rows.clear();
        source.titles.clear();
        for (const auto& section : source.keys) {
            source.rows.push_back(static_cast<int>(section.size()) - 1);
            source.titles.emplace_back("T");
        }
        table.reloadRows();
        std::vector<std::size_t> all;
        for (const auto& section : source.keys) {
            all.insert(all.end(), section.begin(), section.end());
        }
        // What stayed stands where it should; the rest came.
        ASSERT_EQ(view.size(), all.size());
        for (std::size_t place = 0; place < all.size(); ++place) {
            EXPECT_TRUE(view[place] == 0 || view[place] == all[place]) << place;
        }
        view = all;
    };
    show({{1, 10, 11, 12}, {2, 20}});
    const auto counts = [&] { return std::pair(inserted.count(), removed.count()); };
    auto before = counts();
    show({{1, 10, 12, 13}, {2, 20}});
    EXPECT_EQ(counts(), std::pair(before.first + 1, before.second + 1)) << "one came, one went";
    EXPECT_TRUE(table.doRowsFade());
    before = counts();
    show({{1, 10, 12, 13}, {2, 20}});
    EXPECT_EQ(counts(), before);
    show({{2, 20, 21}, {3, 12, 10}});
    show({});
    show({{1, 5, 5, 6}});
    std::size_t seed = 7;
    for (int round = 0; round < 200; ++round) {
        std::vector<std::vector<std::size_t>> keys;
        for (std::size_t section = 0; section < seed / 8 % 4; ++section) {
            keys.push_back({100 + section});
            for (std::size_t key = 1; key < 12; ++key) {
                seed = seed * 6364136223846793005U + 1442695040888963407U;
                if ((seed >> 60U) < 8) {
                    keys.back().push_back(12 * section + (seed >> 59U) % 12 + 200);
                }
            }
        }
        show(std::move(keys));
        ASSERT_FALSE(HasFailure()) << round;
    }

    // Who waits for the end of a touch is called once, after what the touch does.
    int called = 0;
    table.setTouched(true);
    table.whenUntouched([&] { called += 10; });
    table.whenUntouched([&] { ++called; });
    table.setTouched(false);
    EXPECT_EQ(called, 0);
    announce();
    EXPECT_EQ(called, 1);
    table.whenUntouched([&] { ++called; });
    EXPECT_EQ(called, 2);
}

TEST_F(TableTest, ReloadsFromAnyThreadChangeTheEndOfTheListOnlyAndAnnounceCellsOnceWithoutAskingForAny)
{
    RefreshControl control;
    control.pull();
    source.rows = {3};
    std::thread([&] {
        table.reloadData();
        control.endRefreshing();
    }).join();
    EXPECT_EQ(source.asked, 0) << "on the main thread only";
    EXPECT_TRUE(control.isRefreshing());
    announce();
    EXPECT_EQ(table.count(), 3);
    EXPECT_FALSE(control.isRefreshing());
    reload({5});
    reload({2});
    reload({2});
    ASSERT_EQ(inserted.count(), 2);
    EXPECT_EQ(inserted[1][1], 3);
    EXPECT_EQ(inserted[1][2], 4);
    ASSERT_EQ(removed.count(), 1);
    EXPECT_EQ(removed[0][1], 2);
    EXPECT_EQ(removed[0][2], 4);
    EXPECT_EQ(changed.count(), 0);
    announce();
    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(changed[0][1].toModelIndex().row(), 1);

    source.asked = 0;
    for (int time = 0; time < 500; ++time) {
        reload({100000});
    }
    announce();
    EXPECT_EQ(source.asked, 500);
    EXPECT_EQ(source.configured, 0);
    EXPECT_EQ(changed.count(), 2);
    EXPECT_EQ(table.count(), 100000);
}

TEST_F(TableTest, ADeletedRowMovesTheOthersUpWithoutConfiguringThem)
{
    source.titles = {"A", "B"};
    reload({2, 2});
    source.rows = {1, 2};
    table.deleteRow({0, 0}, RowAnimation::Left);
    EXPECT_TRUE(table.isRemovalAnimated());
    EXPECT_EQ(removed[0][1], 1);
    EXPECT_EQ(source.configured, 0);
    ASSERT_EQ(changed.count(), 1);
    EXPECT_FALSE(changed[0][2].value<QList<int>>().isEmpty()) << "drawn rows keep their cells";
    EXPECT_THAT(shown(), ElementsAre("[A]", "0.0fl", "[B]", "1.0f", "1.1l"));

    source.rows = {0, 2};
    table.deleteRow({0, 0}, RowAnimation::None);
    EXPECT_FALSE(table.isRemovalAnimated());
    EXPECT_THAT(shown(), ElementsAre("[A]", "[B]", "1.0f", "1.1l"));
    // A row that was not there: the source knows better.
    source.rows = {1, 2};
    table.deleteRow({0, 3}, RowAnimation::Left);
    EXPECT_THAT(shown(), ElementsAre("[A]", "0.0fl", "[B]", "1.0f", "1.1l"));
}

TEST_F(TableTest, ADrawnRowAsksOnlyWhileItIsDrawnAndLetsGoOfItsContentWhenItBecomesAHeader)
{
    table.reloadData();
    QQmlEngine engine;
    QQmlComponent delegate(&engine);
    delegate.setData("import QtQuick\nItem { property var cell; implicitHeight: 10 }", {});
    CellHost host;
    host.setTable(&table);
    host.setProperty("index", 0);
    host.setProperty("delegate", QVariant::fromValue(&delegate));
    host.configure();
    ASSERT_NE(host.item(), nullptr);
    EXPECT_EQ(host.implicitHeight(), 10);
    const QPointer<QQuickItem> content = host.item();
    const int configured = source.configured;
    // In a list's pool it is not drawn, and what it would show may cost a request.
    for (const bool pooled : {true, false}) {
        host.setProperty("pooled", pooled);
        table.reloadData();
        announce();
        EXPECT_EQ(source.configured, configured + (pooled ? 0 : 1));
    }
    source.titles = {"A"};
    table.reloadData();
    host.configure();
    EXPECT_EQ(host.item(), nullptr);
    // It is deleted later; what it goes through until then is its own.
    ASSERT_FALSE(content.isNull());
    content->setImplicitHeight(30);
    EXPECT_EQ(host.implicitHeight(), 0);
}

} // namespace lodestar
