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
constexpr double formGap = 6;
constexpr double xEntryStep = 20;
constexpr double yEntryStep = 5;
constexpr double largestShare = 0.45;

enum class Side { Right, Left, Below, Above };
enum class Place { Start, Center, End };

Side sideOf(const Legend& legend)
{
    const int number = std::clamp(static_cast<int>(legend.position), 0, 11);
    return static_cast<Side>(number / 3);
}

Place placeOf(const Legend& legend)
{
    const int number = std::clamp(static_cast<int>(legend.position), 0, 11);
    return static_cast<Place>(number % 3);
}

bool isHorizontal(Side side)
{
    return side == Side::Below || side == Side::Above;
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
        : m_metrics(legendFont(style)), m_scale(style.textScale), m_horizontal(isHorizontal(sideOf(legend)))
    {
        const bool line = legend.form == LegendForm::Line;
        m_form = QSizeF(line ? 2 * legend.formSize - 2 : legend.formSize, legend.formSize) * formScale();
        m_entryGap = legend.xEntrySpace * xEntryStep * m_scale;
        m_pitch = lineHeight * m_scale + legend.yEntrySpace * yEntryStep * m_scale;
        m_width = (m_horizontal ? chart.width() : chart.width() * largestShare) - 2 * sideMargin;
        const double height = (m_horizontal ? largestShare : 1.0) * chart.height() - legend.yOffset;
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
    double columnWidth() const
    {
        double width = 0;
        for (const Box& box : m_boxes) {
            width = std::max(width, box.x + box.width);
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
            if (!m_horizontal || box.x + box.width > m_width) {
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
    bool m_horizontal;
    QSizeF m_form;
    double m_entryGap = 0;
    double m_pitch = 0;
    double m_width = 0;
    int m_lines = 0;
    std::vector<Box> m_boxes;
};

double shareBefore(Place place)
{
    return place == Place::Start ? 0.0 : place == Place::Center ? 0.5 : 1.0;
}

/// The flow's origin and its bounds in a left-to-right chart.
struct Frame {
    QPointF origin;
    QRectF bounds;
};

Frame frameOf(const Legend& legend, const Flow& flow, QSizeF chart)
{
    const double outer = flow.height() + legend.yOffset;
    switch (sideOf(legend)) {
    case Side::Above:
        return {{sideMargin, legend.yOffset}, {0, 0, chart.width(), outer}};
    case Side::Below:
        return {{sideMargin, chart.height() - outer}, {0, chart.height() - outer, chart.width(), outer}};
    case Side::Left:
    case Side::Right:
        break;
    }
    const double width = flow.columnWidth() + sideMargin;
    const double start = sideOf(legend) == Side::Left ? 0 : chart.width() - width;
    const double top =
        legend.yOffset + (chart.height() - legend.yOffset - flow.height()) * shareBefore(placeOf(legend));
    return {{sideOf(legend) == Side::Left ? sideMargin : start, top}, {start, 0, width, chart.height()}};
}

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
    const Frame frame = frameOf(legend, flow, chart);
    const bool rightToLeft = style.direction == Qt::RightToLeft;
    const bool aligned = isHorizontal(sideOf(legend));
    layout.bounds = rightToLeft ? mirrored(frame.bounds, chart.width()) : frame.bounds;
    for (const Flow::Box& box : flow.boxes()) {
        const double slack = aligned ? (flow.available() - flow.lineWidth(box.line)) * shareBefore(placeOf(legend)) : 0;
        const double x = frame.origin.x() + slack + box.x;
        const double center = frame.origin.y() + flow.lineCenter(box.line);
        const double textStart = box.hasForm ? flow.textStart() : 0;
        QRectF form(x, center - flow.form().height() / 2, box.hasForm ? flow.form().width() : 0, flow.form().height());
        QRectF text(x + textStart, 0, box.width - textStart, 0);
        if (rightToLeft) {
            form = mirrored(form, chart.width());
            text = mirrored(text, chart.width());
        }
        // Capitals are centred on the mark. The face's box would not do: it has more room above than below.
        layout.boxes.push_back({form, {text.x(), center + flow.metrics().capHeight() / 2}, box.text, box.color});
    }
    return layout;
}

QRectF contentBeside(const Legend& legend, const LegendLayout& layout, QSizeF chart, const ChartStyle& style)
{
    QRectF content(QPointF(0, 0), chart);
    if (layout.bounds.isEmpty()) {
        return content;
    }
    const bool rightToLeft = style.direction == Qt::RightToLeft;
    switch (sideOf(legend)) {
    case Side::Above:
        content.setTop(layout.bounds.bottom());
        break;
    case Side::Below:
        content.setBottom(layout.bounds.top());
        break;
    case Side::Left:
    case Side::Right:
        if ((sideOf(legend) == Side::Left) != rightToLeft) {
            content.setLeft(layout.bounds.right());
        } else {
            content.setRight(layout.bounds.left());
        }
        break;
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
