// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/ChartGlide.h"
#include "Charts/ChartItem.h"
#include "Charts/PlotChartView.h"
#include "Charts/PlotGesture.h"
#include "Charts/PlotRenderer.h"

#include <QVariantList>

#include <optional>

namespace lodestar
{

/// Draws a view of a chart with axes, whatever its marks, and takes its input. Two fingers zoom about the point between
/// them. A double tap zooms in, or shows all again when the zoom is at its closest. The wheel zooms in along x at the
/// pointer, with Control along both axes; with Shift the wheel moves the plot. A touchpad pinch zooms both axes. A
/// finger or the mouse drags a zoomed plot and can throw it. A tap selects. Arrow keys move, + and - zoom, Home and
/// Escape show all.
class PlotChartItem : public lodestar::ChartItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(lodestar::PlotChartView* outlet READ outlet WRITE setOutlet NOTIFY outletChanged)
    Q_PROPERTY(QColor gridColor MEMBER m_gridColor NOTIFY styleChanged)
    Q_PROPERTY(QColor axisColor MEMBER m_axisColor NOTIFY styleChanged)
    /// Colours that replace those of the data sets, by position; empty replaces none.
    Q_PROPERTY(QVariantList seriesColors MEMBER m_seriesColors NOTIFY styleChanged)

public:
    explicit PlotChartItem(QQuickItem* parent = nullptr);

    /// The view is not owned and may be null.
    PlotChartView* outlet() const { return m_outlet; }
    void setOutlet(PlotChartView* outlet);
    /// Whether the plot is changing its zoom or gliding after a throw.
    bool isMoving() const;

protected:
    ChartStyle style() const override;
    void press(QPointF position, quint64 time) override;
    bool move(QPointF position, quint64 time) override;
    void release(quint64 time) override;
    bool moveTwo(QPointF first, QPointF second) override;
    void leaveOne(QPointF remaining, quint64 time) override;
    void forget() override;
    bool pressKey(const QKeyEvent& event) override;
    void rest() override;
    bool event(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

    /// The complete chart's layout; one without a plot while there is no view.
    PlotLayout completeLayout() const;
    PlotFreedom freedom() const;
    void glideTo(const PlotViewport& viewport);
    /// Ends a zoom by key or double tap where it would have ended.
    void endZoom();
    /// Returns whether the plot uses the key.
    bool moveByKey(bool free, double sharesX, double sharesY);

private:
    /// The plot's box within the item; empty without a plot.
    QRectF plot() const { return completeLayout().transform.plot; }
    /// Shows a hand as the pointer over a plot that can be moved.
    void showHand();
    /// A point of the chart in shares of the plot, counted from the plot's lower left.
    QPointF shareOf(QPointF position) const;

    void moveBy(QPointF points);
    /// Returns whether anything changed.
    bool zoomAt(QPointF position, double factorX, double factorY);
    void tapTwice(QPointF position);
    void glideOn(QPointF pointsPerSecond);
    /// Returns whether the plot uses the key.
    bool zoomByKey(double factor);

    QPointer<PlotChartView> m_outlet;
    std::optional<PlotRenderer> m_renderer;
    QColor m_gridColor{0xC4, 0xCC, 0xD5};
    QColor m_axisColor{0xA9, 0xB3, 0xBF};
    QVariantList m_seriesColors;
    PlotGesture m_gesture;
    QVariantAnimation m_zoom; ///< Runs from 0 to 1 between `m_zoomFrom` and `m_zoomTo`.
    PlotViewport m_zoomFrom;
    PlotViewport m_zoomTo;
    QPointF m_glideSpeed; ///< In points a second.
    ChartGlide m_glide;
};

} // namespace lodestar
