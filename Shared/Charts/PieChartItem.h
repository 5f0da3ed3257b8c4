// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/ChartGlide.h"
#include "Charts/ChartItem.h"
#include "Charts/PieChartRenderer.h"
#include "Charts/PieChartView.h"
#include "Charts/PieGesture.h"

#include <optional>

namespace lodestar
{

/// Draws a PieChartView and takes its input: taps and clicks select; one finger or the mouse along the ring turns; two
/// fingers turn; the arrow keys step through the slices and, with Shift, turn; Escape selects nothing.
class PieChartItem : public lodestar::ChartItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(lodestar::PieChartView* outlet READ outlet WRITE setOutlet NOTIFY outletChanged)
    Q_PROPERTY(qreal maximumDiameter READ maximumDiameter WRITE setMaximumDiameter NOTIFY maximumDiameterChanged)

public:
    explicit PieChartItem(QQuickItem* parent = nullptr);

    /// The view is not owned and may be null.
    PieChartView* outlet() const { return m_outlet; }
    void setOutlet(PieChartView* outlet);
    qreal maximumDiameter() const { return m_maximumDiameter; }
    void setMaximumDiameter(qreal diameter);

Q_SIGNALS:
    void maximumDiameterChanged();

protected:
    void press(QPointF position, quint64 time) override;
    bool move(QPointF position, quint64 time) override;
    void release(quint64 time) override;
    bool moveTwo(QPointF first, QPointF second) override;
    void leaveOne(QPointF remaining, quint64 time) override;
    void forget() override;
    bool pressKey(const QKeyEvent& event) override;
    void rest() override { m_spin.stop(); }

private:
    void turnBy(double degrees);
    void spin(double degreesPerSecond);
    void step(int by);

    QPointer<PieChartView> m_outlet;
    std::optional<PieChartRenderer> m_renderer;
    qreal m_maximumDiameter = 240;
    PieGesture m_gesture;
    std::optional<QPointF> m_twoFingers; ///< From the first finger to the second; nothing unless both are down.
    double m_spinSpeed = 0;              ///< In degrees a second.
    ChartGlide m_spin;
};

} // namespace lodestar
