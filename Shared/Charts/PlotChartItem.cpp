// SPDX-License-Identifier: Apache-2.0
#include "Charts/PlotChartItem.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QTouchEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace lodestar
{
namespace
{

constexpr int zoomTime = 240;         // Milliseconds of a zoom that no finger leads.
constexpr int glideTime = 900;        // That a thrown plot glides on.
constexpr double slowestThrow = 60;   // Points a second below which a plot rests at once.
constexpr double stepFactor = 2;      // Of a double tap and of the keys.
constexpr double wheelFactor = 1.2;   // Of a notch, which is 120.
constexpr double keyboardShare = 0.2; // Of what is seen, that an arrow key moves by.

} // namespace

PlotChartItem::PlotChartItem(QQuickItem* parent) : ChartItem(parent)
{
    setAcceptedMouseButtons(Qt::LeftButton);
    setAcceptTouchEvents(true);
    m_zoom.setEasingCurve(QEasingCurve::OutCubic);
    m_zoom.setDuration(zoomTime);
    m_zoom.setStartValue(0.0);
    m_zoom.setEndValue(1.0);
    connect(&m_zoom, &QVariantAnimation::valueChanged, this, [this](const QVariant& value) {
        if (m_outlet != nullptr) {
            m_outlet->setViewport(m_zoomFrom.towards(m_zoomTo, value.toDouble()));
        }
    });
    m_glide.setEasingCurve(QEasingCurve::OutCubic);
    m_glide.setDuration(glideTime);
    m_glide.setStartValue(QPointF());
    connect(&m_glide, &QVariantAnimation::valueChanged, this, [this](const QVariant& value) {
        moveBy(value.toPointF() - m_glided);
        m_glided = value.toPointF();
    });
}

void PlotChartItem::setOutlet(PlotChartView* outlet)
{
    if (m_outlet == outlet) {
        return;
    }
    cancel();
    rest();
    if (m_outlet != nullptr) {
        disconnect(m_outlet, nullptr, this, nullptr);
    }
    m_outlet = outlet;
    m_renderer.reset();
    if (outlet != nullptr) {
        m_renderer.emplace(outlet->model());
        // What moved the old data must not move the new ones.
        connect(outlet, &PlotChartView::dataChanged, this, &PlotChartItem::rest);
    }
    attach(outlet);
    Q_EMIT outletChanged();
}

bool PlotChartItem::isMoving() const
{
    return m_zoom.state() == QAbstractAnimation::Running || m_glide.state() == QAbstractAnimation::Running;
}

const ChartRenderer* PlotChartItem::renderer() const
{
    // The renderer reads the view's model, so it falls silent with the view.
    return m_outlet != nullptr && m_renderer ? &*m_renderer : nullptr;
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

QRectF PlotChartItem::plot() const
{
    return renderer() != nullptr ? m_renderer->layout(completeFrame()).transform.plot : QRectF();
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

bool PlotChartItem::zoomAt(QPointF position, double factor)
{
    if (m_outlet == nullptr || !m_outlet->model().scaleEnabled || m_outlet->model().isEmpty()) {
        return false;
    }
    rest();
    const PlotViewport before = m_outlet->viewport();
    m_outlet->setViewport(before.zoomed(factor, factor, shareOf(position), m_outlet->smallestViewport()));
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
    // The curve sets out three times as fast as its mean, which is where the finger's speed goes on unbroken.
    m_glided = {};
    m_glide.setEndValue(pointsPerSecond * glideTime / 1000 / 3);
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

void PlotChartItem::pinch(QPointF first, QPointF second)
{
    if (m_outlet == nullptr || !m_outlet->model().scaleEnabled || m_outlet->model().isEmpty()) {
        return;
    }
    rest();
    setKeepTouchGrab(true);
    const auto pinch = m_gesture.pinch(first, second, m_outlet->model().pinchZoomEnabled);
    if (!pinch) {
        return;
    }
    if (m_outlet->model().dragEnabled) {
        moveBy(pinch->to - pinch->from);
    }
    m_outlet->setViewport(
        m_outlet->viewport().zoomed(pinch->factorX, pinch->factorY, shareOf(pinch->to), m_outlet->smallestViewport()));
}

void PlotChartItem::cancel()
{
    m_gesture.cancel();
    setKeepMouseGrab(false);
    setKeepTouchGrab(false);
}

void PlotChartItem::mousePressEvent(QMouseEvent* event)
{
    press(event->position(), event->timestamp());
}

void PlotChartItem::mouseMoveEvent(QMouseEvent* event)
{
    setKeepMouseGrab(move(event->position(), event->timestamp()));
}

void PlotChartItem::mouseReleaseEvent(QMouseEvent* event)
{
    release(event->timestamp());
    cancel();
}

void PlotChartItem::mouseUngrabEvent()
{
    cancel();
}

void PlotChartItem::touchEvent(QTouchEvent* event)
{
    const QList<QEventPoint>& points = event->points();
    if (event->type() == QEvent::TouchCancel || points.isEmpty()) {
        cancel();
        return;
    }
    event->accept();
    const QEventPoint& first = points.first();
    if (points.size() > 1) {
        const bool firstLeft = first.state() == QEventPoint::Released;
        if (firstLeft || points.at(1).state() == QEventPoint::Released) {
            m_gesture.endPinch(points.at(firstLeft ? 1 : 0).position(), event->timestamp(), freedom());
        } else {
            pinch(first.position(), points.at(1).position());
        }
    } else if (first.state() == QEventPoint::Pressed) {
        press(first.position(), event->timestamp());
    } else if (first.state() == QEventPoint::Released) {
        release(event->timestamp());
        cancel();
    } else if (m_gesture.state() != PlotGesture::State::Idle) {
        setKeepTouchGrab(move(first.position(), event->timestamp()));
    }
}

void PlotChartItem::touchUngrabEvent()
{
    cancel();
}

void PlotChartItem::wheelEvent(QWheelEvent* event)
{
    const QPoint angle = event->angleDelta();
    event->setAccepted(false);
    if (std::abs(angle.x()) > std::abs(angle.y())) {
        if (freedom().x) {
            rest();
            moveBy(QPointF(event->pixelDelta().isNull() ? angle.x() / 2.0 : event->pixelDelta().x(), 0));
            event->accept();
        }
    } else {
        // At either end the wheel goes on to the page.
        event->setAccepted(zoomAt(event->position(), std::pow(wheelFactor, angle.y() / 120.0)));
    }
}

bool PlotChartItem::event(QEvent* event)
{
    if (event->type() == QEvent::NativeGesture) {
        const auto* gesture = static_cast<QNativeGestureEvent*>(event);
        if (gesture->gestureType() == Qt::ZoomNativeGesture) {
            event->setAccepted(zoomAt(gesture->position(), 1 + gesture->value()));
            return true;
        }
    }
    return ChartItem::event(event);
}

bool PlotChartItem::pressKey(int key)
{
    const PlotModel& model = m_outlet->model();
    const PlotFreedom free = freedom();
    const PlotViewport& seen = m_outlet->viewport();
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Right:
        if (free.x) {
            glideTo(seen.moved(key == Qt::Key_Left ? -keyboardShare : keyboardShare, 0));
        }
        return free.x;
    case Qt::Key_Up:
    case Qt::Key_Down:
        if (free.y) {
            glideTo(seen.moved(0, key == Qt::Key_Down ? -keyboardShare : keyboardShare));
        }
        return free.y;
    case Qt::Key_Plus:
    case Qt::Key_Equal:
    case Qt::Key_Minus: {
        const double factor = key == Qt::Key_Minus ? 1 / stepFactor : stepFactor;
        if (model.scaleEnabled && !model.isEmpty()) {
            glideTo(seen.zoomed(factor, factor, {0.5, 0.5}, m_outlet->smallestViewport()));
        }
        return model.scaleEnabled;
    }
    case Qt::Key_Home:
    case Qt::Key_Escape:
        if (seen.isZoomed()) {
            glideTo({});
            return true;
        }
        return false;
    default:
        return false;
    }
}

void PlotChartItem::keyPressEvent(QKeyEvent* event)
{
    // A key pressed again before the plot has arrived goes on from where it was to arrive.
    if (m_outlet != nullptr && m_zoom.state() == QAbstractAnimation::Running) {
        m_zoom.stop();
        m_outlet->setViewport(m_zoomTo);
    }
    if (m_outlet == nullptr || !pressKey(event->key())) {
        event->ignore();
    }
}

} // namespace lodestar
