// SPDX-License-Identifier: Apache-2.0
#include "Charts/PieChartItem.h"

#include <QKeyEvent>

#include <cmath>

namespace lodestar
{
namespace
{

constexpr double slowestSpin = 40;  // Degrees a second below which a pie rests at once.
constexpr double keyboardTurn = 15; // Degrees per key press.

} // namespace

PieChartItem::PieChartItem(QQuickItem* parent)
    : ChartItem(parent), m_spin([this](double seconds) { turnBy(m_spinSpeed * seconds); })
{
}

void PieChartItem::setOutlet(PieChartView* outlet)
{
    if (m_outlet == outlet) {
        return;
    }
    m_outlet = outlet;
    m_renderer.reset();
    if (outlet != nullptr) {
        m_renderer.emplace(outlet->model()).setMaximumDiameter(m_maximumDiameter);
    }
    attach(outlet, m_renderer ? &*m_renderer : nullptr);
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

void PieChartItem::press(QPointF position, quint64 time)
{
    rest();
    PieGrip grip;
    if (m_outlet != nullptr && m_outlet->model().rotationEnabled) {
        const PieLayout layout = m_renderer->layout(completeFrame());
        if (!layout.slices.empty()) {
            grip = {layout.center, layout.holeRadius, layout.radius};
        }
    }
    // When there is nothing to turn, the ring is empty and far away, so that the gesture knows only taps.
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

bool PieChartItem::moveTwo(QPointF first, QPointF second)
{
    m_gesture.cancel();
    if (m_outlet == nullptr || !m_outlet->model().rotationEnabled || !m_outlet->model().rotationWithTwoFingers) {
        return false;
    }
    rest();
    const QPointF between = second - first;
    if (m_twoFingers) {
        turnBy(turnBetween(*m_twoFingers, between));
    }
    m_twoFingers = between;
    return true;
}

void PieChartItem::leaveOne(QPointF /*remaining*/, quint64 /*time*/)
{
    forget();
}

void PieChartItem::forget()
{
    m_gesture.cancel();
    m_twoFingers.reset();
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
    m_spinSpeed = degreesPerSecond;
    m_spin.start();
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

bool PieChartItem::pressKey(const QKeyEvent& event)
{
    // The right arrow turns clockwise in every language: the pie itself is never mirrored.
    const int way = event.key() == Qt::Key_Left ? -1 : 1;
    switch (event.key()) {
    case Qt::Key_Escape:
        if (!m_outlet->selectedEntry()) {
            return false; // Escape then leaves the screen, as it does elsewhere.
        }
        m_outlet->select(std::nullopt);
        return true;
    case Qt::Key_Left:
    case Qt::Key_Right:
        if (!event.modifiers().testFlag(Qt::ShiftModifier)) {
            step(way);
        } else if (m_outlet->model().rotationEnabled) {
            turnBy(way * keyboardTurn);
        }
        return true;
    default:
        return false;
    }
}

} // namespace lodestar
