// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/ChartView.h"
#include "Charts/PieChartModel.h"

#include <optional>
#include <utility>

namespace lodestar
{

/// A controller's side of a pie chart.
class PieChartView : public lodestar::ChartView
{
    Q_OBJECT
    QML_NAMED_ELEMENT(PieChartView)
    QML_UNCREATABLE("made by controllers")
    Q_PROPERTY(QString selectedText READ selectedText NOTIFY selectionChanged)

public:
    using ChartView::ChartView;

    /// The whole of what is drawn.
    const PieChartModel& model() const { return m_model; }

    void setUsePercentValues(bool on) { assign(m_model.usePercentValues, on); }
    void setDrawHole(bool on) { assign(m_model.drawHole, on); }
    void setHoleTransparent(bool on) { assign(m_model.holeTransparent, on); }
    void setHoleRadiusPercent(double fraction) { assign(m_model.holeRadiusPercent, fraction); }
    void setTransparentCircleRadiusPercent(double fraction)
    {
        assign(m_model.transparentCircleRadiusPercent, fraction);
    }
    void setDescriptionText(const QString& text) { assign(m_model.descriptionText, text); }
    /// Degrees clockwise.
    void setRotationAngle(double angle) { assign(m_model.rotationAngle, angle); }
    void setRotationEnabled(bool on) { assign(m_model.rotationEnabled, on); }
    void setRotationWithTwoFingers(bool on) { assign(m_model.rotationWithTwoFingers, on); }
    void setDrawSliceText(bool on) { assign(m_model.drawSliceText, on); }
    const Legend& legend() const { return m_model.legend; }
    void setLegend(const Legend& legend) { assign(m_model.legend, legend); }
    const PieChartData& data() const { return m_model.data; }
    void setData(const PieChartData& data);

    /// Highlights exactly these, none for an empty list. The delegate is not told: it is the program speaking.
    void highlightValues(const QList<Highlight>& highlights);
    /// The user's selection of an entry by its position, or of nothing; the delegate is told. Selecting the selected
    /// entry again selects nothing.
    void select(std::optional<qsizetype> entry);
    /// Position of the entry that is highlighted first; nothing when none is.
    std::optional<qsizetype> selectedEntry() const;

    /// States and values in order, as in "operating 17, standby 3".
    QString accessibleText() const override;
    /// The same of the selected entry; empty without one.
    QString selectedText() const;

Q_SIGNALS:
    void selectionChanged();

private:
    template <typename T>
    void assign(T& member, const T& value)
    {
        if (!(member == value)) {
            member = value;
            Q_EMIT changed();
        }
    }
    QString textOf(const ChartEntry& entry) const;

    PieChartModel m_model;
};

} // namespace lodestar
