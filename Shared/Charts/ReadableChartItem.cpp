// SPDX-License-Identifier: Apache-2.0
#include "Charts/ReadableChartItem.h"

#include <QHoverEvent>
#include <QKeyEvent>
#include <QTimerEvent>
#include <QTouchEvent>

#include <cmath>
#include <limits>

namespace lodestar
{
namespace
{

constexpr int restTime = 400;       // Milliseconds that a finger rests before it reads.
constexpr double restDistance = 5;  // Points within which a finger rests.
constexpr double besidePlot = 12;   // Points beside the plot where the pointer still reads the outermost entries.
constexpr double shareBeyond = 0.1; // Share of the view that stays beyond an entry that was brought into view.
constexpr double shareOfMove = 0.2; // Share of the view by which Shift with an arrow key moves.

} // namespace

ReadableChartItem::ReadableChartItem(QQuickItem* parent) : PlotChartItem(parent)
{
    setAcceptHoverEvents(true);
    connect(this, &ChartItem::outletChanged, this, &ReadableChartItem::follow);
    connect(this, &ChartItem::styleChanged, this, &ReadableChartItem::place);
}

void ReadableChartItem::follow()
{
    if (outlet() != nullptr) {
        connect(outlet(), &ChartView::changed, this, &ReadableChartItem::place);
        connect(outlet(), &PlotChartView::readIndexChanged, this, &ReadableChartItem::place);
    }
    place();
}

void ReadableChartItem::componentComplete()
{
    PlotChartItem::componentComplete();
    place();
}

void ReadableChartItem::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry)
{
    PlotChartItem::geometryChange(newGeometry, oldGeometry);
    place();
}

void ReadableChartItem::place()
{
    if (!isComponentComplete()) {
        return;
    }
    const PlotLayout layout = completeLayout();
    m_plot = layout.transform.plot;
    const std::optional<int> index = outlet() != nullptr ? outlet()->readIndex() : std::nullopt;
    m_isReading = index && layout.hasPlot() && layout.transform.visible.x.contains(*index);
    m_readYs.clear();
    if (m_isReading) {
        m_readX = layout.transform.toX(*index);
        const auto count = static_cast<int>(outlet()->model().allSeries().size());
        for (int number = 0; number < count; ++number) {
            const std::optional<ChartEntry> entry = outlet()->model().entryOf({*index, number});
            const bool isSeen = entry && layout.transform.visible.y.contains(entry->value);
            m_readYs << (isSeen ? layout.transform.toY(entry->value) : std::numeric_limits<qreal>::quiet_NaN());
        }
    }
    Q_EMIT placed();
}

void ReadableChartItem::readAt(QPointF position, Reader reader)
{
    if (outlet() == nullptr || !m_plot.adjusted(-besidePlot, -besidePlot, besidePlot, besidePlot).contains(position)) {
        // A finger that strays from the plot goes on reading.
        if (reader != Reader::Finger) {
            stopReading();
        }
        return;
    }
    m_reader = reader;
    const PlotTransform transform = completeLayout().transform;
    outlet()->setReadIndex(transform.toIndex(std::clamp(position.x(), m_plot.left(), m_plot.right())));
}

void ReadableChartItem::stopReading()
{
    m_reader = Reader::None;
    if (outlet() != nullptr) {
        outlet()->setReadIndex(std::nullopt);
    }
}

void ReadableChartItem::hoverMoveEvent(QHoverEvent* event)
{
    // The scene repeats the place of a pointer that rests whenever something changes, and that of a finger as if it
    // were a mouse. Neither must take the reading from the keys or begin one.
    const QPointF place = mapToScene(event->position());
    if (place != m_hovered && !m_isFingerDown) {
        m_hovered = place;
        readAt(event->position(), Reader::Pointer);
    }
}

void ReadableChartItem::hoverLeaveEvent(QHoverEvent* /*event*/)
{
    m_hovered = {};
    if (m_reader == Reader::Pointer) {
        stopReading();
    }
}

void ReadableChartItem::touchEvent(QTouchEvent* event)
{
    m_isFingerDown = event->type() != QEvent::TouchEnd && event->type() != QEvent::TouchCancel;
    if (!event->points().isEmpty()) {
        m_hovered = mapToScene(event->points().first().position());
    }
    PlotChartItem::touchEvent(event);
}

void ReadableChartItem::focusOutEvent(QFocusEvent* event)
{
    PlotChartItem::focusOutEvent(event);
    if (m_reader == Reader::Keys) {
        stopReading();
    }
}

void ReadableChartItem::press(QPointF position, quint64 time)
{
    PlotChartItem::press(position, time);
    m_pressed = position;
    if (m_isFingerDown) {
        m_rest.start(restTime, this);
    }
}

void ReadableChartItem::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_rest.timerId()) {
        PlotChartItem::timerEvent(event);
        return;
    }
    m_rest.stop();
    PlotChartItem::forget(); // The finger now reads; it neither moves the plot nor taps.
    setKeepTouchGrab(true);
    readAt(m_pressed, Reader::Finger);
}

bool ReadableChartItem::move(QPointF position, quint64 time)
{
    if (m_reader == Reader::Finger) {
        readAt(position, Reader::Finger);
        return true;
    }
    if (std::hypot(position.x() - m_pressed.x(), position.y() - m_pressed.y()) > restDistance) {
        m_rest.stop();
    }
    const bool keeps = PlotChartItem::move(position, time);
    if (m_reader == Reader::Pointer) {
        readAt(position, Reader::Pointer);
    }
    return keeps;
}

bool ReadableChartItem::moveTwo(QPointF first, QPointF second)
{
    m_rest.stop();
    if (m_reader == Reader::Finger) {
        stopReading();
    }
    return PlotChartItem::moveTwo(first, second);
}

void ReadableChartItem::forget()
{
    m_rest.stop();
    if (m_reader == Reader::Finger) {
        stopReading();
    }
    PlotChartItem::forget();
}

bool ReadableChartItem::pressKey(const QKeyEvent& event)
{
    endZoom();
    const bool moves = event.modifiers().testFlag(Qt::ShiftModifier);
    const PlotInterval all = outlet()->model().dataExtent().x;
    switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right: {
        const bool forward = event.key() == Qt::Key_Right;
        return moves ? moveByKey(freedom().x, forward ? shareOfMove : -shareOfMove, 0) : stepByKey(forward);
    }
    case Qt::Key_Home:
        return readEnd(all.from);
    case Qt::Key_End:
        return readEnd(all.to);
    case Qt::Key_Escape:
        if (m_reader == Reader::Keys) {
            stopReading();
            return true;
        }
        return PlotChartItem::pressKey(event);
    default:
        return PlotChartItem::pressKey(event);
    }
}

bool ReadableChartItem::stepByKey(bool forward)
{
    m_reader = Reader::Keys;
    outlet()->stepReading(forward);
    bringIntoView();
    return true;
}

bool ReadableChartItem::readEnd(double index)
{
    m_reader = Reader::Keys;
    outlet()->setReadIndex(index);
    bringIntoView();
    return true;
}

void ReadableChartItem::bringIntoView()
{
    const std::optional<int> index = outlet()->readIndex();
    const PlotInterval visible = completeLayout().transform.visible.x;
    if (!index || visible.contains(*index)) {
        return;
    }
    const double share = (*index - visible.from) / visible.length();
    outlet()->setViewport(outlet()->viewport().moved(share < 0 ? share - shareBeyond : share - 1 + shareBeyond, 0));
}

} // namespace lodestar
