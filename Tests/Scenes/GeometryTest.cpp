// SPDX-License-Identifier: Apache-2.0
#include "Inventory/Feed.h"
#include "Tests/Scenes/SceneTest.h"

#include <optional>
#include <tuple>

namespace lodestar::scenes
{
namespace
{

constexpr int elideMiddle = 2;
constexpr double tolerance = 1;

/// Width, height, text scale, right to left, in a language of longer texts.
using Setting = std::tuple<int, int, double, bool, bool>;

class GeometryTest : public SceneTest, public ::testing::WithParamInterface<Setting>
{
protected:
    void SetUp() override
    {
        Appearance::shared().overrideTextScale(std::get<2>(GetParam()));
        Appearance::shared().overrideMirrored(std::get<3>(GetParam()));
        if (std::get<4>(GetParam())) {
            language.emplace();
        }
    }
    QSize size() const { return {std::get<0>(GetParam()), std::get<1>(GetParam())}; }

    /// Where a text's letters are, in the window.
    static QRectF inkOf(const QQuickItem* text)
    {
        const double width = std::min(text->property("contentWidth").toDouble(), text->width());
        const int alignment = text->property("effectiveHorizontalAlignment").toInt();
        const double free = text->width() - width;
        const double x = alignment == Qt::AlignRight ? free : alignment == Qt::AlignHCenter ? free / 2 : 0;
        return text->mapRectToScene(QRectF(x, 0, width, text->height()));
    }
    std::vector<QQuickItem*> texts() const
    {
        std::vector<QQuickItem*> found = stage.items("QQuickText");
        std::erase_if(found, [](const QQuickItem* item) {
            return item->property("text").toString().isEmpty() || item->width() <= 0;
        });
        return found;
    }
    static const QQuickItem* rowOf(const QQuickItem* item)
    {
        while (item != nullptr && !QByteArray(item->metaObject()->className()).startsWith("TableRow")) {
            item = item->parentItem();
        }
        return item;
    }
    /// Sentences are whole; only names, which say so, are cut in their middle. Nothing leaves the window at its sides,
    /// nothing overlaps in a row, and a finger hits every button.
    void expectSound() const
    {
        const std::vector<QQuickItem*> all = texts();
        ASSERT_FALSE(all.empty());
        for (auto item = all.begin(); item != all.end(); ++item) {
            SCOPED_TRACE((*item)->property("text").toString().toStdString());
            const bool mayElide = (*item)->property("elide").toInt() == elideMiddle;
            EXPECT_TRUE(mayElide || !(*item)->property("truncated").toBool());
            EXPECT_LE((*item)->property("contentWidth").toDouble(), (*item)->width() + tolerance);
            const QRectF ink = inkOf(*item);
            EXPECT_GE(ink.left(), -tolerance);
            EXPECT_LE(ink.right(), size().width() + tolerance);
            for (auto other = item + 1; other != all.end(); ++other) {
                const bool apart = rowOf(*item) == nullptr || rowOf(*item) != rowOf(*other);
                const QRectF common = apart ? QRectF() : ink.intersected(inkOf(*other));
                EXPECT_TRUE(common.width() <= tolerance || common.height() <= tolerance)
                    << (*other)->property("text").toString().toStdString();
            }
        }
        for (const QQuickItem* item : stage.buttons()) {
            EXPECT_GE(std::min(item->width(), item->height()), 44) << item->property("text").toString().toStdString();
        }
    }
    /// Opens the scenes one after the other and leaves each after a look.
    template <typename... Input>
    void visit(const AnyInput& input, Scene<Input>... scene) const
    {
        const auto visitOne = [&](auto each) {
            SCOPED_TRACE(each.identifier);
            ASSERT_NE(stage.open(each, input), nullptr);
            ASSERT_TRUE(stage.waitFor([&] { return row(0) != nullptr && stage.items("Spinner").empty(); }));
            stage.settle(200);
            expectSound();
            stage.list().navigationController()->pop();
            stage.settle(200);
        };
        (visitOne(scene), ...);
    }

private:
    std::optional<PseudoLanguage> language;
};

TEST_P(GeometryTest, ConsolesMirrorAndKeepTheirHeightAndTheirNames)
{
    for (const std::vector<ConsoleLook>& consoles : {longNames(), {}}) {
        stage.show(size(), consoles);
        expectSound();
    }
    std::vector<ConsoleLook> alike = fleet();
    alike[0].name = "Northfield Recovery Site, 1";
    alike[1].name = "Northfield Recovery Site, 2";
    alike[0].version = alike[1].version = "V10R2.1070.0.SP1045-with-fix";
    stage.show(size(), alike);
    for (const ConsoleLook& console : {alike[0], alike[1]}) {
        ASSERT_NE(text(console.name.c_str()), nullptr);
        EXPECT_FALSE(text(console.name.c_str())->property("truncated").toBool()) << "the version yields first";
        EXPECT_NE(text(console.version.c_str()), nullptr);
    }
    expectSound();
    stage.show(size(), fleet());
    expectSound();
    const double scale = std::get<2>(GetParam());
    for (const QQuickItem* place : stage.items("TableRow")) {
        EXPECT_GE(place->height(), std::round(92 * scale));
        EXPECT_TRUE(scale >= 1.5 || place->height() == std::round(92 * scale));
    }
    const QQuickItem* name = text("Harbour A");
    ASSERT_NE(name, nullptr);
    const QRectF ink = inkOf(name);
    const bool atStart = ink.center().x() < row(0)->mapRectToScene(row(0)->boundingRect()).center().x();
    EXPECT_EQ(atStart, !std::get<3>(GetParam()));
}

TEST_P(GeometryTest, Editor)
{
    stage.show(size(), fleet());
    DeltaCorvelViewController& editor = *stage.openEditor();
    ASSERT_TRUE(waitForSheet());
    // What is written is seen.
    const QQuickItem* form = stage.items("Form").at(0);
    const std::vector<QQuickItem*> fields = stage.items("FormField");
    ASSERT_EQ(fields.size(), 4U);
    for (QQuickItem* field : {fields[3], fields[0]}) {
        QMetaObject::invokeMethod(field, "edit", Q_ARG(int, int(Qt::TabFocusReason)));
        stage.settle(200);
        const QRectF place = field->mapRectToItem(form, field->boundingRect());
        EXPECT_GE(place.top(), 0);
        EXPECT_LE(place.bottom(), form->height());
    }
    // And what went wrong is read without scrolling.
    editor.saveCorvel();
    stage.settle(300);
    expectSound();
    const QQuickItem* error = text("Please enter all fields");
    ASSERT_NE(error, nullptr);
    EXPECT_LE(error->mapToScene(QPointF(0, error->height())).y(), size().height());
}

TEST_P(GeometryTest, Dashboard)
{
    std::vector<ConsoleLook> consoles = fleet();
    consoles[2].state = ConsoleLook::State::Offline;
    stage.show(size(), consoles);
    stage.showDashboard();
    ASSERT_TRUE(stage.waitFor([this] { return text("4 / 6") != nullptr; }));
    expectSound();
    // Side by side from tablets on.
    const std::vector<QQuickItem*> pies = stage.items("PieChart");
    ASSERT_EQ(pies.size(), 2U);
    EXPECT_EQ(pies[0]->mapToScene({}).y() == pies[1]->mapToScene({}).y(), size().width() >= 600);
}

TEST_P(GeometryTest, Inventory)
{
    // A wide window shows the list of consoles beside the first screen, and none of them must turn a spinner.
    std::vector<ConsoleLook> consoles = fleet();
    consoles[2].state = ConsoleLook::State::Online;
    stage.show(size(), consoles);
    const CorvelRef corvel = demoConsole();
    const auto objectAt = [&](std::string_view type, std::size_t place) {
        return contentOf(feedOfType(*corvel, type).entries().at(place), type);
    };
    visit({corvel, objectAt(ObjectType::ManagedSystem, 2)}, Scenes::corvelTasksViewController,
          Scenes::managedSystemsView, Scenes::managementConsoleView, Scenes::managedSystemInfo,
          Scenes::managedSystemMenu, Scenes::logicalPartitionsView, Scenes::logicalPartitionsDetail, Scenes::viosView);
    visit({corvel, objectAt(ObjectType::ServiceableEvent, 0)}, Scenes::serviceableEventsView,
          Scenes::serviceableEventsDetail, Scenes::resourceGroupsView);
}

const Setting settings[] = {{360, 640, 1, false, false},  {390, 844, 1, true, false},   {360, 640, 1.3, false, false},
                            {390, 844, 2, false, false},  {360, 640, 2, true, false},   {768, 1024, 1, false, false},
                            {768, 1024, 2, false, false}, {1280, 800, 1, false, false}, {1280, 800, 1, true, false},
                            {390, 844, 1, false, true},   {768, 1024, 1, true, true}};

INSTANTIATE_TEST_SUITE_P(Sizes, GeometryTest, ::testing::ValuesIn(settings));

} // namespace
} // namespace lodestar::scenes
