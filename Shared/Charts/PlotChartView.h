// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/ChartView.h"
#include "Charts/PlotModel.h"

#include <optional>

namespace lodestar
{

/// A chart with axes as its controller holds it: lines, bars, or both.
class PlotChartView : public lodestar::ChartView
{
    Q_OBJECT
    QML_NAMED_ELEMENT(PlotChartView)
    QML_UNCREATABLE("made by controllers")
    Q_PROPERTY(bool zoomed READ isZoomed NOTIFY changed)

public:
    explicit PlotChartView(QObject* parent = nullptr);

    /// Everything that is drawn.
    const PlotModel& model() const { return m_model; }

    const PlotChartData& data() const { return m_data; }
    /// Shows all of the data, with nothing highlighted. Empty data show the no-data text.
    void setData(const PlotChartData& data);
    void clear() { setData({}); }

    void setNoDataText(const QString& text);
    void setHighlightEnabled(bool on) { assign(m_model.highlightEnabled, on); }
    void setDragEnabled(bool on) { assign(m_model.dragEnabled, on); }
    void setScaleEnabled(bool on) { assign(m_model.scaleEnabled, on); }
    void setPinchZoomEnabled(bool on) { assign(m_model.pinchZoomEnabled, on); }
    void setHighlightIndicatorEnabled(bool on) { assign(m_model.highlightIndicatorEnabled, on); }
    void setDrawGridBackgroundEnabled(bool on) { assign(m_model.drawGridBackgroundEnabled, on); }
    void setCompact(bool on) { assign(m_model.compact, on); }
    const XAxis& xAxis() const { return m_model.xAxis; }
    void setXAxis(const XAxis& axis) { assign(m_model.xAxis, axis); }
    const YAxis& leftAxis() const { return m_model.leftAxis; }
    void setLeftAxis(const YAxis& axis) { assign(m_model.leftAxis, axis); }
    const YAxis& rightAxis() const { return m_model.rightAxis; }
    void setRightAxis(const YAxis& axis) { assign(m_model.rightAxis, axis); }

    /// The part of the plot that is in view. New data reset it to the whole plot.
    const PlotViewport& viewport() const { return m_model.viewport; }
    /// The viewport is kept within the plot and no smaller than `smallestViewport`.
    void setViewport(const PlotViewport& viewport)
    {
        assign(m_model.viewport, viewport.zoomed(1, 1, {0, 0}, smallestViewport()));
    }
    bool isZoomed() const { return m_model.viewport.isZoomed(); }
    /// The smallest part that a zoom can show, in shares of the whole: two steps of the x axis, a fiftieth of the
    /// values.
    QSizeF smallestViewport() const;

    /// Applies the user's selection of an entry, or of nothing, and tells the delegate. Selecting the selected entry
    /// again selects nothing.
    void select(const std::optional<Highlight>& highlight);

    /// The x index at which the chart is read, always one with an entry; nothing while it is not read. New data end the
    /// reading. A view only keeps the index: the marks and the values at it are for the scene to show.
    std::optional<int> readIndex() const { return m_readIndex; }
    /// Reads at the entry nearest to the index.
    void setReadIndex(std::optional<double> index);
    /// Reads at the next entry after the one that is read, or before it; from no entry, at the first or the last.
    void stepReading(bool forward);

    /// Names and latest values in order, as in "Total Processors 16, Processors Used 6.5", unless a text was given; the
    /// no-data text without data.
    QString accessibleText() const override;
    /// What a screen reader says instead; empty for the usual text.
    void setAccessibleText(const QString& text);
    /// Data set's name, label and value.
    QString selectedText() const override;

Q_SIGNALS:
    void readIndexChanged();

private:
    void read(std::optional<int> index);
    const ChartModel& common() const override { return m_model; }
    ChartModel& common() override { return m_model; }

    PlotChartData m_data;
    PlotModel m_model;
    QString m_accessibleText;
    std::optional<int> m_readIndex;
};

} // namespace lodestar
