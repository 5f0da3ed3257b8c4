// SPDX-License-Identifier: Apache-2.0
#include "Charts/Legend.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace lodestar
{
namespace
{

constexpr double sideMargin = 20;
constexpr double fontSize = 12;
constexpr double lineHeight = 16;
constexpr double formSize = 9; // Side of a square, diameter of a circle.
constexpr double lineLength = 16;
constexpr double formGap = 6;
constexpr double xEntryStep = 20;
constexpr double yEntryStep = 5;
constexpr double largestShare = 0.45;

bool isAbove(const Legend& legend)
{
    return legend.position >= LegendPosition::AboveChartLeft;
}

/// Share of a line's free room that stays before its entries.
double shareBefore(const Legend& legend)
{
    return static_cast<int>(legend.position) % 3 / 2.0;
}

QFont legendFont(const ChartStyle& style)
{
    QFont font = style.textFont;
    font.setPixelSize(qMax(1, qRound(fontSize * style.textScale)));
    return font;
}

/// Lays entries out line by line from the top left. Callers then move, align and mirror the result.
class Flow
{
public:
    Flow(const Legend& legend, QSizeF chart, const ChartStyle& style)
        : m_metrics(legendFont(style)), m_scale(style.textScale)
    {
        m_form = QSizeF(legend.form == LegendForm::Line ? lineLength : formSize, formSize) * formScale();
        m_entryGap = legend.xEntrySpace * xEntryStep * m_scale;
        m_pitch = lineHeight * m_scale + legend.yEntrySpace * yEntryStep * m_scale;
        m_width = chart.width() - 2 * sideMargin;
        const double height = largestShare * chart.height() - legend.yOffset;
        m_lines = std::max(1, static_cast<int>(std::floor((height + m_pitch - lineHeight * m_scale) / m_pitch)));
    }

    void place(std::span<const LegendItem> items)
    {
        std::size_t placed = 0;
        while (placed < items.size() && append(items[placed])) {
            ++placed;
        }
        std::size_t missing = items.size() - placed;
        // Removes entries until the count of missing entries fits.
        while (missing > 0 && !appendMissing(missing) && !m_boxes.empty()) {
            m_boxes.pop_back();
            ++missing;
        }
    }

    struct Box {
        int line = 0;
        double x = 0;
        double width = 0;
        QString text;
        QColor color;
        bool hasForm = true;
    };
    const std::vector<Box>& boxes() const { return m_boxes; }
    int lineCount() const { return m_boxes.empty() ? 0 : m_boxes.back().line + 1; }
    double lineWidth(int line) const
    {
        double width = 0;
        for (const Box& box : m_boxes) {
            width = box.line == line ? std::max(width, box.x + box.width) : width;
        }
        return width;
    }
    double height() const { return lineCount() == 0 ? 0 : (lineCount() - 1) * m_pitch + lineHeight * m_scale; }
    double lineCenter(int line) const { return line * m_pitch + lineHeight * m_scale / 2; }
    double available() const { return m_width; }
    QSizeF form() const { return m_form; }
    double textStart() const { return m_form.width() + formGap * formScale(); }
    const QFontMetricsF& metrics() const { return m_metrics; }

private:
    /// Marks grow only half as fast as the text: they are told apart by colour and need not be read.
    double formScale() const { return 1 + (m_scale - 1) / 2; }

    bool append(const LegendItem& item)
    {
        const double room = std::max(m_width - textStart(), 1.0);
        QString text = item.label;
        if (m_metrics.horizontalAdvance(text) > room) {
            text = m_metrics.elidedText(text, Qt::ElideMiddle, room);
        }
        return appendBox({0, 0, textStart() + m_metrics.horizontalAdvance(text), text, item.color, true});
    }

    bool appendMissing(std::size_t missing)
    {
        const QString text = QStringLiteral("+%1").arg(missing);
        return appendBox({0, 0, m_metrics.horizontalAdvance(text), text, QColor(), false});
    }

    bool appendBox(Box box)
    {
        if (!m_boxes.empty()) {
            const Box& last = m_boxes.back();
            box.line = last.line;
            box.x = last.x + last.width + m_entryGap;
            if (box.x + box.width > m_width) {
                ++box.line;
                box.x = 0;
            }
        }
        if (box.line >= m_lines) {
            return false;
        }
        m_boxes.push_back(std::move(box));
        return true;
    }

    QFontMetricsF m_metrics;
    double m_scale;
    QSizeF m_form;
    double m_entryGap = 0;
    double m_pitch = 0;
    double m_width = 0;
    int m_lines = 0;
    std::vector<Box> m_boxes;
};

QRectF mirrored(const QRectF& rect, double width)
{
    return {width - rect.x() - rect.width(), rect.y(), rect.width(), rect.height()};
}

} // namespace

LegendLayout layoutLegend(const Legend& legend, std::span<const LegendItem> items, QSizeF chart,
                          const ChartStyle& style)
{
    LegendLayout layout;
    if (!legend.enabled || items.empty() || chart.width() <= 2 * sideMargin || chart.height() <= 0) {
        return layout;
    }
    Flow flow(legend, chart, style);
    flow.place(items);
    const double outer = flow.height() + legend.yOffset;
    layout.bounds = {0, isAbove(legend) ? 0 : chart.height() - outer, chart.width(), outer};
    const double top = isAbove(legend) ? legend.yOffset : layout.bounds.top();
    for (const Flow::Box& box : flow.boxes()) {
        const double slack = (flow.available() - flow.lineWidth(box.line)) * shareBefore(legend);
        const double x = sideMargin + slack + box.x;
        const double center = top + flow.lineCenter(box.line);
        const double textStart = box.hasForm ? flow.textStart() : 0;
        QRectF form(x, center - flow.form().height() / 2, box.hasForm ? flow.form().width() : 0, flow.form().height());
        QRectF text(x + textStart, 0, box.width - textStart, 0);
        if (style.direction == Qt::RightToLeft) {
            form = mirrored(form, chart.width());
            text = mirrored(text, chart.width());
        }
        // Capitals are centred on the mark. The face's box would not do: it has more room above than below.
        layout.boxes.push_back({form, {text.x(), center + flow.metrics().capHeight() / 2}, box.text, box.color});
    }
    return layout;
}

QRectF contentBeside(const Legend& legend, const LegendLayout& layout, QSizeF chart)
{
    QRectF content(QPointF(0, 0), chart);
    if (layout.bounds.isEmpty()) {
        return content;
    }
    if (isAbove(legend)) {
        content.setTop(layout.bounds.bottom());
    } else {
        content.setBottom(layout.bounds.top());
    }
    return content;
}

void drawLegend(QPainter& painter, const Legend& legend, const LegendLayout& layout, const ChartStyle& style)
{
    painter.setFont(legendFont(style));
    for (const LegendBox& box : layout.boxes) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(box.color);
        if (!box.form.isEmpty()) {
            switch (legend.form) {
            case LegendForm::Square:
                painter.drawRoundedRect(box.form, 2, 2);
                break;
            case LegendForm::Circle:
                painter.drawEllipse(box.form);
                break;
            case LegendForm::Line:
                painter.fillRect(QRectF(box.form.x(), box.form.center().y() - 1, box.form.width(), 2), box.color);
                break;
            }
        }
        painter.setPen(style.textColor);
        painter.drawText(box.baseline, box.text);
    }
}

} // namespace lodestar
