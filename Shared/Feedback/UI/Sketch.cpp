// SPDX-License-Identifier: Apache-2.0
#include "Feedback/UI/Sketch.h"

#include "Kit/Core/UIColor+Tessel.h"

#include <utility>

namespace lodestar
{
namespace
{

constexpr double penWidth = 4; ///< in points

} // namespace

Sketch::Sketch(QImage picture, QObject* parent) : QObject(parent), m_picture(std::move(picture)) {}

void Sketch::setTool(Tool tool)
{
    m_tool = tool;
    Q_EMIT toolChanged();
}

void Sketch::setColor(int color)
{
    if (color >= 0 && color < colors().size()) {
        m_color = color;
        m_tool = Tool::Pen; // a person who picks a colour wants to draw with it
        Q_EMIT toolChanged();
    }
}

QList<QColor> Sketch::colors()
{
    return {UIColor::dashboardRed(), UIColor::dashboardYellow(), UIColor::dashboardGreen(), UIColor::selectedBlue(),
            QColor(0x1A, 0x20, 0x27)};
}

QVariantList Sketch::colorList()
{
    QVariantList list;
    for (const QColor& color : colors()) {
        list << color;
    }
    return list;
}

QPointF Sketch::within(QPointF point) const
{
    return {qBound(0.0, point.x(), double(m_picture.width())), qBound(0.0, point.y(), double(m_picture.height()))};
}

void Sketch::begin(QPointF point)
{
    const QPointF start = within(point);
    m_marks.push_back({m_tool, colors().at(m_color), {start, start}});
    m_drawing = true;
    Q_EMIT marksChanged();
}

void Sketch::extend(QPointF point)
{
    if (!m_drawing) {
        return;
    }
    Mark& mark = m_marks.back();
    if (mark.tool == Tool::Cover) {
        mark.points.back() = within(point);
    } else {
        mark.points.push_back(within(point));
    }
    Q_EMIT marksChanged();
}

void Sketch::end()
{
    // A tap with the cover tool hides nothing, so it must not count as a mark to undo.
    if (m_drawing && m_marks.back().tool == Tool::Cover &&
        (m_marks.back().points.front() - m_marks.back().points.back()).manhattanLength() < 2) {
        m_marks.pop_back();
        Q_EMIT marksChanged();
    }
    m_drawing = false;
}

void Sketch::undo()
{
    m_drawing = false;
    if (!m_marks.empty()) {
        m_marks.pop_back();
        Q_EMIT marksChanged();
    }
}

void Sketch::paintCover(QPainter& painter, const QRectF& rect, double unit)
{
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x54, 0x5E, 0x6B));
    // Paints a full rectangle beneath the rounded bar: otherwise the corners would show what is covered.
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.drawRect(rect);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setClipRect(rect, Qt::IntersectClip);
    painter.setPen(QPen(QColor(0x76, 0x80, 0x8D), 2 * unit));
    const double step = 7 * unit;
    for (double x = rect.left() - rect.height(); x < rect.right() + step; x += step) {
        painter.drawLine(QPointF(x, rect.bottom()), QPointF(x + rect.height(), rect.top()));
    }
    painter.restore();
}

void Sketch::paint(QPainter& painter) const
{
    const double unit = m_picture.devicePixelRatio();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRect(QPoint(), m_picture.size()), m_picture);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const Mark& mark : m_marks) {
        if (mark.tool == Tool::Cover) {
            paintCover(painter, QRectF(mark.points.front(), mark.points.back()).normalized(), unit);
        } else {
            painter.setPen(QPen(mark.color, penWidth * unit, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
            painter.drawPolyline(mark.points);
        }
    }
}

QImage Sketch::composed() const
{
    QImage image(m_picture.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    paint(painter);
    return image;
}

} // namespace lodestar
