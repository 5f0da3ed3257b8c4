// SPDX-License-Identifier: Apache-2.0
#include "Charts/Legend.h"

#include "ChartSupport.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace lodestar::charttest
{
namespace
{

constexpr QSizeF chart(366, 325);

LegendLayout layOut(const Legend& legend, const QStringList& labels, double scale = 1,
                    Qt::LayoutDirection direction = Qt::LeftToRight)
{
    std::vector<LegendItem> items;
    for (const QString& label : labels) {
        items.push_back({label, red});
    }
    ChartFrame frame = inLato({});
    frame.style.textScale = scale;
    frame.style.direction = direction;
    return layoutLegend(legend, items, chart, frame.style);
}

TEST(LegendTest, NumberNineStandsAboveTheChartFromTheLeftAndWraps)
{
    const Legend legend = dashboardPie({}).legend;
    const LegendLayout layout = layOut(legend, {"operating", "incomplete", "standby", "power off", "error"});
    ASSERT_EQ(layout.boxes.size(), 5U);
    const QRectF first = layout.boxes[0].form;
    EXPECT_EQ(first, QRectF(20, 18 + 8 - 4.5, 9, 9)) << "middle of a line of 16 below the offset";
    EXPECT_EQ(layout.boxes[0].baseline.x(), 20 + 9 + 6);
    EXPECT_EQ(layout.boxes[3].form.center().y(), first.center().y()) << "four entries share the first line";
    EXPECT_EQ(layout.boxes[4].form.topLeft(), first.topLeft() + QPointF(0, 20)) << "the fifth starts the second";
    EXPECT_EQ(contentBeside(legend, layout, chart), QRectF(0, 54, 366, 271));
}

TEST(LegendTest, EveryPositionKeepsToItsSideAndItsEndOfTheLine)
{
    Legend legend = dashboardPie({}).legend;
    std::array<double, 3> places{};
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        for (int number = 6; number < 12; ++number) {
            SCOPED_TRACE(testing::Message() << number << (direction == Qt::RightToLeft ? " mirrored" : ""));
            legend.position = static_cast<LegendPosition>(number);
            const LegendLayout layout = layOut(legend, {"one", "one"}, 1, direction);
            const QRectF content = contentBeside(legend, layout, chart);
            ASSERT_EQ(layout.boxes.size(), 2U);
            const QRectF forms = layout.boxes[0].form | layout.boxes[1].form;
            EXPECT_FALSE(content.intersects(forms)) << "the legend never covers the chart";
            EXPECT_TRUE(QRectF(QPointF(0, 0), chart).contains(forms));
            EXPECT_EQ(layout.bounds.center().y() < content.center().y(), number >= 9);
            if (const int place = direction == Qt::RightToLeft ? 2 - number % 3 : number % 3; place != 1) {
                EXPECT_EQ(forms.center().x() > chart.width() / 2, place == 2);
            }
            places.at(static_cast<std::size_t>(number % 3)) = forms.center().x();
            if (number % 3 == 2) {
                EXPECT_DOUBLE_EQ(places[1], (places[0] + places[2]) / 2) << "the middle of the line";
                // An entry's end lies as far from its form as the next form, less the gap between them.
                const double step = std::abs(layout.boxes[1].form.left() - layout.boxes[0].form.left());
                EXPECT_NEAR(forms.width() - 9 + step - legend.xEntrySpace * 20 + std::abs(places[2] - places[0]),
                            chart.width() - 40, 1e-6);
            }
        }
    }
}

TEST(LegendTest, LongNamesAndLongListsStayInsideTheirShare)
{
    const Legend legend = dashboardPie({}).legend;
    const QString longName = QString(400, QLatin1Char('w'));
    const QString text = layOut(legend, {longName}).boxes.at(0).text;
    EXPECT_LT(text.size(), longName.size());
    EXPECT_EQ(text.back(), QLatin1Char('w')) << "elided in the middle";

    const QStringList many(500, QStringLiteral("state"));
    for (const double scale : {1.0, 2.0}) {
        const LegendLayout cut = layOut(legend, many, scale);
        EXPECT_LE(cut.bounds.height(), 0.45 * 325);
        const LegendBox& last = cut.boxes.back();
        EXPECT_TRUE(last.form.isEmpty());
        EXPECT_EQ(last.text, QStringLiteral("+%1").arg(500 - (cut.boxes.size() - 1))) << "says exactly how many";
    }
}

} // namespace
} // namespace lodestar::charttest
