// SPDX-License-Identifier: Apache-2.0
#include "Charts/PlotChartItem.h"

#include <QCursor>
#include <QKeyEvent>
#include <QNativeGestureEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace lodestar
{
namespace
{

constexpr int zoomTime = 240;         // Milliseconds of a zoom by double tap or key.
constexpr double slowestThrow = 60;   // Points a second below which a plot rests at once.
constexpr double stepFactor = 2;      // Zoom factor of a double tap and of a key press.
constexpr double wheelFactor = 1.2;   // Zoom factor of one wheel notch, which is 120.
constexpr double keyboardShare = 0.2; // Share of the view by which an arrow key moves.

} // namespace

PlotChartItem::PlotChartItem(QQuickItem* parent)
    : ChartItem(parent), m_glide([this](double seconds) { moveBy(m_glideSpeed * seconds); })
{
    m_zoom.setEasingCurve(QEasingCurve::OutCubic);
    m_zoom.setDuration(zoomTime);
    m_zoom.setStartValue(0.0);
    m_zoom.setEndValue(1.0);
    connect(&m_zoom, &QVariantAnimation::valueChanged, this, [this](const QVariant& value) {
        if (m_outlet != nullptr) {
            m_outlet->setViewport(m_zoomFrom.towards(m_zoomTo, value.toDouble()));
        }
    });
}

void PlotChartItem::setOutlet(PlotChartView* outlet)
{
    if (m_outlet == outlet) {
        return;
    }
    m_outlet = outlet;
    m_renderer.reset();
    if (outlet != nullptr) {
        m_renderer.emplace(outlet->model());
    }
    attach(outlet, m_renderer ? &*m_renderer : nullptr);
    if (outlet != nullptr) {
        connect(outlet, &ChartView::changed, this, &PlotChartItem::showHand);
    }
    showHand();
}

void PlotChartItem::showHand()
{
    const PlotFreedom free = freedom();
    if (free.x || free.y) {
        const bool isHeld = m_gesture.state() == PlotGesture::State::Dragging;
        setCursor(QCursor(isHeld ? Qt::ClosedHandCursor : Qt::OpenHandCursor));
    } else {
        unsetCursor();
    }
}

bool PlotChartItem::isMoving() const
{
    return m_zoom.state() == QAbstractAnimation::Running || m_glide.isRunning();
}

ChartStyle PlotChartItem::style() const
{
    ChartStyle style = ChartItem::style();
    style.gridColor = m_gridColor;
    style.axisColor = m_axisColor;
    for (const QVariant& color : m_seriesColors) {
        style.seriesColors << color.value<QColor>();
    }
    return style;
}

PlotLayout PlotChartItem::completeLayout() const
{
    return m_outlet != nullptr ? m_renderer->layout(completeFrame()) : PlotLayout();
}

PlotFreedom PlotChartItem::freedom() const
{
    if (m_outlet == nullptr || !m_outlet->model().dragEnabled) {
        return {};
    }
    return {m_outlet->viewport().isZoomedX(), m_outlet->viewport().isZoomedY()};
}

QPointF PlotChartItem::shareOf(QPointF position) const
{
    const QRectF area = plot();
    if (area.isEmpty()) {
        return {0.5, 0.5};
    }
    return {std::clamp((position.x() - area.left()) / area.width(), 0.0, 1.0),
            std::clamp((area.bottom() - position.y()) / area.height(), 0.0, 1.0)};
}

void PlotChartItem::rest()
{
    m_zoom.stop();
    m_glide.stop();
}

void PlotChartItem::moveBy(QPointF points)
{
    const QRectF area = plot();
    if (!area.isEmpty()) {
        m_outlet->setViewport(m_outlet->viewport().moved(-points.x() / area.width(), points.y() / area.height()));
    }
}

bool PlotChartItem::zoomAt(QPointF position, double factorX, double factorY)
{
    if (m_outlet == nullptr || !m_outlet->model().scaleEnabled || m_outlet->model().isEmpty()) {
        return false;
    }
    rest();
    const PlotViewport before = m_outlet->viewport();
    m_outlet->setViewport(before.zoomed(factorX, factorY, shareOf(position), m_outlet->smallestViewport()));
    return !(before == m_outlet->viewport());
}

void PlotChartItem::glideTo(const PlotViewport& viewport)
{
    rest();
    if (isMotionReduced()) {
        m_outlet->setViewport(viewport);
        return;
    }
    m_zoomFrom = m_outlet->viewport();
    m_zoomTo = viewport;
    m_zoom.start();
}

void PlotChartItem::glideOn(QPointF pointsPerSecond)
{
    if (m_outlet == nullptr || std::hypot(pointsPerSecond.x(), pointsPerSecond.y()) < slowestThrow ||
        isMotionReduced()) {
        return;
    }
    m_glideSpeed = pointsPerSecond;
    m_glide.start();
}

void PlotChartItem::press(QPointF position, quint64 time)
{
    rest();
    m_gesture.press(position, time, freedom());
}

bool PlotChartItem::move(QPointF position, quint64 time)
{
    if (const std::optional<QPointF> by = m_gesture.move(position, time)) {
        moveBy(*by);
        showHand();
    }
    return m_gesture.state() == PlotGesture::State::Dragging;
}

void PlotChartItem::release(quint64 time)
{
    const PlotGesture::Tap tap = m_gesture.release(time);
    const QPointF position = m_gesture.pressPosition();
    if (m_outlet == nullptr) {
        return;
    }
    if (tap == PlotGesture::Tap::Double && m_outlet->model().scaleEnabled) {
        tapTwice(position);
    } else if (tap != PlotGesture::Tap::None && m_outlet->model().highlightEnabled) {
        m_outlet->select(m_renderer->entryAt(m_renderer->layout(completeFrame()), position));
    } else {
        glideOn(m_gesture.throwSpeed());
    }
}

void PlotChartItem::tapTwice(QPointF position)
{
    if (m_outlet->model().isEmpty()) {
        return;
    }
    const PlotViewport& seen = m_outlet->viewport();
    const PlotViewport closer = seen.zoomed(stepFactor, stepFactor, shareOf(position), m_outlet->smallestViewport());
    glideTo(closer == seen ? PlotViewport() : closer);
}

bool PlotChartItem::moveTwo(QPointF first, QPointF second)
{
    if (m_outlet == nullptr || !m_outlet->model().scaleEnabled || m_outlet->model().isEmpty()) {
        return false;
    }
    rest();
    if (const auto pinch = m_gesture.pinch(first, second, m_outlet->model().pinchZoomEnabled)) {
        if (m_outlet->model().dragEnabled) {
            moveBy(pinch->to - pinch->from);
        }
        m_outlet->setViewport(m_outlet->viewport().zoomed(pinch->factorX, pinch->factorY, shareOf(pinch->to),
                                                          m_outlet->smallestViewport()));
    }
    return true;
}

void PlotChartItem::forget()
{
    m_gesture.cancel();
    showHand();
}

void PlotChartItem::leaveOne(QPointF remaining, quint64 time)
{
    m_gesture.endPinch(remaining, time, freedom());
}

void PlotChartItem::wheelEvent(QWheelEvent* event)
{
    QPoint angle = event->angleDelta();
    QPoint points = event->pixelDelta();
    if (event->modifiers().testFlag(Qt::ShiftModifier)) { // Most mice have no horizontal wheel.
        angle = angle.transposed();
        points = points.transposed();
    }
    if (std::abs(angle.x()) <= std::abs(angle.y())) {
        // Zooming in enlarges x only, so that the lines do not leave the plot at top and bottom; with Control, it
        // enlarges y too. Zooming out always shrinks both. When the zoom cannot go further, the page gets the wheel.
        const double factor = std::pow(wheelFactor, angle.y() / 120.0);
        const bool both = factor < 1 || event->modifiers().testFlag(Qt::ControlModifier);
        event->setAccepted(zoomAt(event->position(), factor, both ? factor : 1));
        return;
    }
    event->setAccepted(freedom().x);
    if (freedom().x) {
        rest();
        moveBy(QPointF(points.isNull() ? angle.x() / 2.0 : points.x(), 0));
    }
}

bool PlotChartItem::event(QEvent* event)
{
    if (event->type() == QEvent::NativeGesture) {
        const auto* gesture = static_cast<QNativeGestureEvent*>(event);
        if (gesture->gestureType() == Qt::ZoomNativeGesture) {
            event->setAccepted(zoomAt(gesture->position(), 1 + gesture->value(), 1 + gesture->value()));
            return true;
        }
    }
    return ChartItem::event(event);
}

void PlotChartItem::endZoom()
{
    if (m_zoom.state() == QAbstractAnimation::Running) {
        m_zoom.stop();
        m_outlet->setViewport(m_zoomTo);
    }
}

bool PlotChartItem::pressKey(const QKeyEvent& event)
{
    // A key that is pressed during a zoom starts from where that zoom would end.
    endZoom();
    switch (event.key()) {
    case Qt::Key_Left:
        return moveByKey(freedom().x, -keyboardShare, 0);
    case Qt::Key_Right:
        return moveByKey(freedom().x, keyboardShare, 0);
    case Qt::Key_Up:
        return moveByKey(freedom().y, 0, keyboardShare);
    case Qt::Key_Down:
        return moveByKey(freedom().y, 0, -keyboardShare);
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        return zoomByKey(stepFactor);
    case Qt::Key_Minus:
        return zoomByKey(1 / stepFactor);
    case Qt::Key_Home:
    case Qt::Key_Escape:
        if (m_outlet->viewport().isZoomed()) {
            glideTo({});
            return true;
        }
        return false;
    default:
        return false;
    }
}

bool PlotChartItem::moveByKey(bool free, double sharesX, double sharesY)
{
    if (free) {
        glideTo(m_outlet->viewport().moved(sharesX, sharesY));
    }
    return free;
}

bool PlotChartItem::zoomByKey(double factor)
{
    const PlotModel& model = m_outlet->model();
    if (model.scaleEnabled && !model.isEmpty()) {
        glideTo(model.viewport.zoomed(factor, factor, {0.5, 0.5}, m_outlet->smallestViewport()));
    }
    return model.scaleEnabled;
}

} // namespace lodestar
