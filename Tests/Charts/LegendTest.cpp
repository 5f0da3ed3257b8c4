// SPDX-License-Identifier: Apache-2.0
#include "Charts/Legend.h"

#include "ChartSupport.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace lodestar
{
namespace
{

constexpr QSizeF chart(366, 325);

ChartStyle style(double scale = 1, Qt::LayoutDirection direction = Qt::LeftToRight)
{
    ChartStyle made;
    made.textFont = QFont(QStringLiteral("Lato"));
    made.textScale = scale;
    made.direction = direction;
    return made;
}

Legend legendAt(int number)
{
    Legend legend;
    legend.position = static_cast<LegendPosition>(number);
    legend.xEntrySpace = 0.8;
    legend.yEntrySpace = 0.8;
    legend.yOffset = 18;
    return legend;
}

std::vector<LegendItem> items(std::initializer_list<const char*> labels)
{
    std::vector<LegendItem> made;
    for (const char* label : labels) {
        made.push_back({QString::fromLatin1(label), Qt::red});
    }
    return made;
}

TEST(LegendTest, NumberNineStandsAboveTheChartFromTheLeftAndWraps)
{
    const auto labels = items({"operating", "incomplete", "standby", "power off", "error"});
    const LegendLayout layout = layoutLegend(legendAt(9), labels, chart, style());
    ASSERT_EQ(layout.boxes.size(), 5U);
    const QRectF first = layout.boxes[0].form;
    EXPECT_EQ(first.size(), QSizeF(9, 9));
    EXPECT_EQ(first.left(), 20);
    EXPECT_EQ(first.center().y(), 18 + 8) << "middle of a line of 16 below the offset";
    EXPECT_EQ(layout.boxes[0].baseline.x(), 20 + 9 + 6);
    EXPECT_EQ(layout.boxes[3].form.center().y(), first.center().y()) << "four entries share the first line";
    EXPECT_EQ(layout.boxes[4].form.left(), 20) << "the fifth starts the second";
    EXPECT_EQ(layout.boxes[4].form.center().y(), first.center().y() + 20);
    EXPECT_EQ(layout.bounds, QRectF(0, 0, 366, 54));
    EXPECT_EQ(contentBeside(legendAt(9), layout, chart, style()), QRectF(0, 54, 366, 271));
}

TEST(LegendTest, EveryPositionKeepsToItsSide)
{
    const auto labels = items({"one", "two"});
    for (int number = 0; number < 12; ++number) {
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            const Legend legend = legendAt(number);
            const LegendLayout layout = layoutLegend(legend, labels, chart, style(1, direction));
            const QRectF content = contentBeside(legend, layout, chart, style(1, direction));
            SCOPED_TRACE(testing::Message() << number << (direction == Qt::RightToLeft ? " mirrored" : ""));
            ASSERT_EQ(layout.boxes.size(), 2U);
            for (const LegendBox& box : layout.boxes) {
                EXPECT_FALSE(content.intersects(box.form)) << "the legend never covers the chart";
                EXPECT_TRUE(QRectF(QPointF(0, 0), chart).contains(box.form));
            }
            const QPointF offset = layout.bounds.center() - content.center();
            const bool right = (number / 3 == 0) != (direction == Qt::RightToLeft);
            switch (number / 3) {
            case 2:
                EXPECT_GT(offset.y(), 0);
                break;
            case 3:
                EXPECT_LT(offset.y(), 0);
                break;
            default:
                EXPECT_EQ(offset.x() > 0, right);
            }
        }
    }
    const auto firstLeft = [&](int number) {
        return layoutLegend(legendAt(number), labels, chart, style()).boxes[0].form.left();
    };
    EXPECT_LT(firstLeft(9), firstLeft(10));
    EXPECT_LT(firstLeft(10), firstLeft(11));
}
TEST(LegendTest, LongNamesAndLongListsStayInsideTheirShare)
{
    const QString longName = QString(400, QLatin1Char('w'));
    const std::vector<LegendItem> one{{longName, Qt::red}};
    const LegendLayout elided = layoutLegend(legendAt(9), one, chart, style());
    const QString text = elided.boxes.at(0).text;
    EXPECT_LT(text.size(), longName.size());
    EXPECT_EQ(text.front(), QLatin1Char('w'));
    EXPECT_EQ(text.back(), QLatin1Char('w')) << "elided in the middle";

    const std::vector<LegendItem> many(500, LegendItem{QStringLiteral("state"), Qt::red});
    for (const double scale : {1.0, 2.0}) {
        const LegendLayout cut = layoutLegend(legendAt(9), many, chart, style(scale));
        EXPECT_LE(cut.bounds.height(), 0.45 * 325);
        const LegendBox& last = cut.boxes.back();
        EXPECT_TRUE(last.form.isEmpty());
        EXPECT_EQ(last.text, QStringLiteral("+%1").arg(500 - (cut.boxes.size() - 1))) << "says exactly how many";
    }
}
} // namespace
} // namespace lodestar
