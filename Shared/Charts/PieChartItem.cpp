// SPDX-License-Identifier: Apache-2.0
#include "Charts/PieChartItem.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QTouchEvent>

#include <cmath>

namespace lodestar
{
namespace
{

constexpr int spinTime = 900;       // Milliseconds that a thrown pie turns on.
constexpr double slowestSpin = 40;  // Degrees a second below which a pie rests at once.
constexpr double keyboardTurn = 15; // Degrees a key press.

} // namespace

PieChartItem::PieChartItem(QQuickItem* parent) : ChartItem(parent)
{
    setAcceptedMouseButtons(Qt::LeftButton);
    setAcceptTouchEvents(true);
    m_spin.setEasingCurve(QEasingCurve::OutCubic);
    m_spin.setStartValue(0.0);
    m_spin.setDuration(spinTime);
    connect(&m_spin, &QVariantAnimation::valueChanged, this, [this](const QVariant& value) {
        turnBy(value.toDouble() - m_spun);
        m_spun = value.toDouble();
    });
}

void PieChartItem::setOutlet(PieChartView* outlet)
{
    if (m_outlet == outlet) {
        return;
    }
    cancel();
    m_spin.stop();
    m_outlet = outlet;
    m_renderer.reset();
    if (outlet != nullptr) {
        m_renderer.emplace(outlet->model()).setMaximumDiameter(m_maximumDiameter);
    }
    attach(outlet);
    Q_EMIT outletChanged();
}

void PieChartItem::setMaximumDiameter(qreal diameter)
{
    if (m_maximumDiameter != diameter) {
        m_maximumDiameter = diameter;
        if (m_renderer) {
            m_renderer->setMaximumDiameter(diameter);
        }
        Q_EMIT maximumDiameterChanged();
        Q_EMIT styleChanged();
    }
}

const ChartRenderer* PieChartItem::renderer() const
{
    // The renderer reads the view's model, so it falls silent with the view.
    return m_outlet != nullptr && m_renderer ? &*m_renderer : nullptr;
}

void PieChartItem::press(QPointF position, quint64 time)
{
    m_spin.stop();
    PieGrip grip;
    if (m_outlet != nullptr && m_outlet->model().rotationEnabled) {
        const PieLayout layout = m_renderer->layout(completeFrame());
        if (!layout.slices.empty()) {
            grip = {layout.center, layout.holeRadius, layout.radius};
        }
    }
    // Without anything to turn the grip is empty and far away, and only taps remain.
    if (grip.outerRadius <= 0) {
        grip.center = QPointF(-1e6, -1e6);
    }
    m_gesture.press(position, time, grip);
}

bool PieChartItem::move(QPointF position, quint64 time)
{
    if (const std::optional<double> turn = m_gesture.move(position, time)) {
        turnBy(*turn);
    }
    return m_gesture.state() == PieGesture::State::Turning;
}

void PieChartItem::release(quint64 time)
{
    if (m_gesture.isTap() && m_outlet != nullptr) {
        const QPointF position = m_gesture.pressPosition();
        m_gesture.cancel();
        m_outlet->select(m_renderer->entryAt(m_renderer->layout(completeFrame()), position));
        return;
    }
    spin(m_gesture.release(time));
}

void PieChartItem::cancel()
{
    m_gesture.cancel();
    m_twoFingers.reset();
    setKeepMouseGrab(false);
    setKeepTouchGrab(false);
}

void PieChartItem::turnBy(double degrees)
{
    if (m_outlet != nullptr) {
        m_outlet->setRotationAngle(std::fmod(m_outlet->model().rotationAngle + degrees, 360.0));
    }
}

void PieChartItem::spin(double degreesPerSecond)
{
    if (std::abs(degreesPerSecond) < slowestSpin || isMotionReduced()) {
        return;
    }
    // The curve sets out three times as fast as its mean, which is where the finger's speed goes on unbroken.
    m_spun = 0;
    m_spin.setEndValue(degreesPerSecond * spinTime / 1000 / 3);
    m_spin.start();
}

void PieChartItem::mousePressEvent(QMouseEvent* event)
{
    press(event->position(), event->timestamp());
}

void PieChartItem::mouseMoveEvent(QMouseEvent* event)
{
    setKeepMouseGrab(move(event->position(), event->timestamp()));
}

void PieChartItem::mouseReleaseEvent(QMouseEvent* event)
{
    release(event->timestamp());
    cancel();
}

void PieChartItem::mouseUngrabEvent()
{
    cancel();
}

void PieChartItem::touchEvent(QTouchEvent* event)
{
    const QList<QEventPoint>& points = event->points();
    if (event->type() == QEvent::TouchCancel || points.isEmpty()) {
        cancel();
        return;
    }
    event->accept();
    const QEventPoint& first = points.first();
    if (points.size() > 1) {
        m_gesture.cancel();
        if (first.state() == QEventPoint::Released || points.at(1).state() == QEventPoint::Released) {
            m_twoFingers.reset();
        } else {
            turnWithTwoFingers(first.position(), points.at(1).position());
        }
    } else if (first.state() == QEventPoint::Pressed) {
        press(first.position(), event->timestamp());
    } else if (first.state() == QEventPoint::Released) {
        release(event->timestamp());
        cancel();
    } else if (m_gesture.state() != PieGesture::State::Idle) {
        setKeepTouchGrab(move(first.position(), event->timestamp()));
    }
}

void PieChartItem::turnWithTwoFingers(QPointF first, QPointF second)
{
    if (m_outlet == nullptr || !m_outlet->model().rotationEnabled || !m_outlet->model().rotationWithTwoFingers) {
        return;
    }
    m_spin.stop();
    setKeepTouchGrab(true);
    const QPointF between = second - first;
    if (m_twoFingers) {
        turnBy(turnBetween(*m_twoFingers, between));
    }
    m_twoFingers = between;
}

void PieChartItem::touchUngrabEvent()
{
    cancel();
}

void PieChartItem::step(int by)
{
    const std::vector<PieSlice> slices = m_renderer->layout(completeFrame()).slices;
    if (slices.empty()) {
        return;
    }
    const std::optional<qsizetype> selected = m_outlet->selectedEntry();
    const auto count = static_cast<int>(slices.size());
    int next = by > 0 ? 0 : count - 1;
    for (int i = 0; i < count; ++i) {
        if (slices[static_cast<std::size_t>(i)].entry == selected) {
            next = (i + by + count) % count;
        }
    }
    if (slices[static_cast<std::size_t>(next)].entry != selected) {
        m_outlet->select(slices[static_cast<std::size_t>(next)].entry);
    }
}

void PieChartItem::keyPressEvent(QKeyEvent* event)
{
    const bool arrow = event->key() == Qt::Key_Left || event->key() == Qt::Key_Right;
    if (m_outlet == nullptr || (!arrow && event->key() != Qt::Key_Escape)) {
        ChartItem::keyPressEvent(event);
        return;
    }
    // Right is clockwise in every language: the pie itself is never mirrored.
    const int way = event->key() == Qt::Key_Right ? 1 : -1;
    if (!arrow) {
        if (!m_outlet->selectedEntry()) {
            event->ignore(); // Leaves the screen, as elsewhere.
            return;
        }
        m_outlet->select(std::nullopt);
    } else if (!event->modifiers().testFlag(Qt::ShiftModifier)) {
        step(way);
    } else if (m_outlet->model().rotationEnabled) {
        turnBy(way * keyboardTurn);
    }
}

} // namespace lodestar
