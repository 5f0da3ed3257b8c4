// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/ChartItem.h"
#include "Charts/PieChartRenderer.h"
#include "Charts/PieChartView.h"
#include "Charts/PieGesture.h"

#include <optional>

namespace lodestar
{

/// Draws a pie chart view and takes its input: taps and clicks select, a finger or the mouse along the ring turns, two
/// fingers turn, the arrow keys step through the slices (with Shift: turn), Escape selects nothing.
class PieChartItem : public lodestar::ChartItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(lodestar::PieChartView* outlet READ outlet WRITE setOutlet NOTIFY outletChanged)
    Q_PROPERTY(qreal maximumDiameter READ maximumDiameter WRITE setMaximumDiameter NOTIFY maximumDiameterChanged)

public:
    explicit PieChartItem(QQuickItem* parent = nullptr);

    /// Not owned, may be null.
    PieChartView* outlet() const { return m_outlet; }
    void setOutlet(PieChartView* outlet);
    qreal maximumDiameter() const { return m_maximumDiameter; }
    void setMaximumDiameter(qreal diameter);

Q_SIGNALS:
    void outletChanged();
    void maximumDiameterChanged();

protected:
    const ChartRenderer* renderer() const override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseUngrabEvent() override;
    void touchEvent(QTouchEvent* event) override;
    void touchUngrabEvent() override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void press(QPointF position, quint64 time);
    /// Whether the gesture is the pie's own now.
    bool move(QPointF position, quint64 time);
    void release(quint64 time);
    void cancel();
    void turnWithTwoFingers(QPointF first, QPointF second);
    void turnBy(double degrees);
    void spin(double degreesPerSecond);
    void step(int by);

    QPointer<PieChartView> m_outlet;
    std::optional<PieChartRenderer> m_renderer;
    qreal m_maximumDiameter = 240;
    PieGesture m_gesture;
    std::optional<QPointF> m_twoFingers; ///< From the first finger to the second while both are down.
    QVariantAnimation m_spin;
    double m_spun = 0;
};

} // namespace lodestar
