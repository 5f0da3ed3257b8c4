// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/ChartEasing.h"
#include "Charts/ChartModel.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace lodestar
{

class ChartView;

/// Receives the user's selections, on the main thread; does nothing unless overridden.
class ChartViewDelegate
{
public:
    virtual ~ChartViewDelegate() = default;
    virtual void chartValueSelected(ChartView& /*chartView*/, const ChartEntry& /*entry*/, int /*dataSetIndex*/,
                                    const Highlight& /*highlight*/)
    {
    }
    virtual void chartValueNothingSelected(ChartView& /*chartView*/) {}
};

/// A chart as its controller holds it: what the chart shows, how, and whether it is hidden. A controller offers its
/// view as a constant property named after the outlet; a chart item of the scene draws it. Main thread only.
class ChartView : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(ChartView)
    QML_UNCREATABLE("made by controllers")
    Q_PROPERTY(bool hidden READ isHidden WRITE setHidden NOTIFY hiddenChanged)
    Q_PROPERTY(QString accessibleText READ accessibleText NOTIFY dataChanged)
    Q_PROPERTY(QString selectedText READ selectedText NOTIFY selectionChanged)

public:
    explicit ChartView(QObject* parent = nullptr) : QObject(parent) {}

    bool isHidden() const { return m_hidden; }
    void setHidden(bool hidden);

    /// The delegate is not owned and may be null. It must outlive this view or be set back to null.
    ChartViewDelegate* delegate() const { return m_delegate; }
    void setDelegate(ChartViewDelegate* delegate) { m_delegate = delegate; }

    void setDescriptionText(const QString& text) { assign(common().descriptionText, text); }
    const Legend& legend() const { return common().legend; }
    void setLegend(const Legend& legend) { assign(common().legend, legend); }

    /// Highlights exactly these entries; an empty list highlights none. The delegate is not told, because it hears of
    /// the user's selections only.
    void highlightValues(const QList<Highlight>& highlights);

    /// Grows the chart in; durations in seconds. Without an item that shows it, the chart is complete at once.
    void animate(double xAxisDuration, double yAxisDuration, ChartEasingOption easingOption);

    /// Grows the chart in along x only, as lines grow.
    void animate(double xAxisDuration, ChartEasingOption easingOption = ChartEasingOption::EaseInOutQuart)
    {
        animate(xAxisDuration, 0, easingOption);
    }

    /// The text that a screen reader says for the picture; empty when there is nothing to say.
    virtual QString accessibleText() const = 0;
    /// The text that a screen reader says for the first highlighted entry; empty without one.
    virtual QString selectedText() const = 0;

Q_SIGNALS:
    void hiddenChanged();
    /// Anything changed that the picture depends on.
    void changed();
    /// The data changed; `changed` is sent as well.
    void dataChanged();
    void selectionChanged();
    void animateRequested(const lodestar::ChartAnimation& animation);

protected:
    /// The part of the subclass's model that all charts share.
    virtual const ChartModel& common() const = 0;
    virtual ChartModel& common() = 0;

    template <typename T>
    void assign(T& member, const T& value)
    {
        if (!(member == value)) {
            member = value;
            Q_EMIT changed();
        }
    }
    void announceData();
    /// Applies the user's selection of an entry, or of nothing, and tells the delegate.
    void select(const std::optional<ChartEntry>& entry, const Highlight& highlight);

private:
    ChartViewDelegate* m_delegate = nullptr;
    bool m_hidden = false;
};

} // namespace lodestar
