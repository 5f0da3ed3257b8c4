// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/ChartView.h"
#include "Charts/PieChartModel.h"

#include <optional>

namespace lodestar
{

/// A pie chart as its controller holds it.
class PieChartView : public lodestar::ChartView
{
    Q_OBJECT
    QML_NAMED_ELEMENT(PieChartView)
    QML_UNCREATABLE("made by controllers")

public:
    using ChartView::ChartView;

    /// Everything that is drawn.
    const PieChartModel& model() const { return m_model; }

    void setUsePercentValues(bool on) { assign(m_model.usePercentValues, on); }
    void setDrawHole(bool on) { assign(m_model.drawHole, on); }
    void setHoleTransparent(bool on) { assign(m_model.holeTransparent, on); }
    void setHoleRadiusPercent(double fraction) { assign(m_model.holeRadiusPercent, fraction); }
    void setTransparentCircleRadiusPercent(double fraction)
    {
        assign(m_model.transparentCircleRadiusPercent, fraction);
    }
    /// In degrees clockwise.
    void setRotationAngle(double angle) { assign(m_model.rotationAngle, angle); }
    void setRotationEnabled(bool on) { assign(m_model.rotationEnabled, on); }
    void setRotationWithTwoFingers(bool on) { assign(m_model.rotationWithTwoFingers, on); }
    void setDrawSliceText(bool on) { assign(m_model.drawSliceText, on); }
    const PieChartData& data() const { return m_model.data; }
    void setData(const PieChartData& data);

    /// Applies the user's selection of an entry by its position, or of nothing, and tells the delegate. Selecting the
    /// selected entry again selects nothing.
    void select(std::optional<qsizetype> entry);
    /// Position of the first highlighted entry; nothing when none is highlighted.
    std::optional<qsizetype> selectedEntry() const;

    /// States and values in the data's order, as in "operating 17, standby 3".
    QString accessibleText() const override;
    QString selectedText() const override;

private:
    const ChartModel& common() const override { return m_model; }
    ChartModel& common() override { return m_model; }
    QString textOf(const ChartEntry& entry) const;

    PieChartModel m_model;
};

} // namespace lodestar
