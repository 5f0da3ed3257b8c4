// SPDX-License-Identifier: Apache-2.0
#include "Charts/Legend.h"

#include "ChartSupport.h"

#include <gtest/gtest.h>

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
    EXPECT_EQ(first, QRectF(20, 18 + 8 - 4.5, 9, 9)) << "middle of a line of 16 below the offset";
    EXPECT_EQ(layout.boxes[0].baseline.x(), 20 + 9 + 6);
    EXPECT_EQ(layout.boxes[3].form.center().y(), first.center().y()) << "four entries share the first line";
    EXPECT_EQ(layout.boxes[4].form.topLeft(), first.topLeft() + QPointF(0, 20)) << "the fifth starts the second";
    EXPECT_EQ(contentBeside(legendAt(9), layout, chart), QRectF(0, 54, 366, 271));
}

TEST(LegendTest, EveryPositionKeepsToItsSideAndItsEndOfTheLine)
{
    const auto labels = items({"one", "two"});
    for (int number = 6; number < 12; ++number) {
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            SCOPED_TRACE(testing::Message() << number << (direction == Qt::RightToLeft ? " mirrored" : ""));
            const LegendLayout layout = layoutLegend(legendAt(number), labels, chart, style(1, direction));
            const QRectF content = contentBeside(legendAt(number), layout, chart);
            ASSERT_EQ(layout.boxes.size(), 2U);
            const QRectF forms = layout.boxes[0].form | layout.boxes[1].form;
            EXPECT_FALSE(content.intersects(forms)) << "the legend never covers the chart";
            EXPECT_TRUE(QRectF(QPointF(0, 0), chart).contains(forms));
            EXPECT_EQ(layout.bounds.center().y() < content.center().y(), number >= 9);
            if (const int place = direction == Qt::RightToLeft ? 2 - number % 3 : number % 3; place != 1) {
                EXPECT_EQ(forms.center().x() > chart.width() / 2, place == 2);
            }
        }
    }
}

TEST(LegendTest, LongNamesAndLongListsStayInsideTheirShare)
{
    const QString longName = QString(400, QLatin1Char('w'));
    const std::vector<LegendItem> one{{longName, Qt::red}};
    const QString text = layoutLegend(legendAt(9), one, chart, style()).boxes.at(0).text;
    EXPECT_LT(text.size(), longName.size());
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
