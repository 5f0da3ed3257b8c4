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

/// Told of the user's selections, on the main thread.
class ChartViewDelegate
{
public:
    virtual ~ChartViewDelegate() = default;
    virtual void chartValueSelected(ChartView& chartView, const ChartEntry& entry, int dataSetIndex,
                                    const Highlight& highlight) = 0;
    virtual void chartValueNothingSelected(ChartView& chartView) = 0;
};

/// A controller's side of a chart: what it shows, how, and whether. A constant property of the controller under the
/// outlet's own name; the chart item of the scene draws it. Main thread only.
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

    /// Not owned and may be null; must outlive this or be taken back.
    ChartViewDelegate* delegate() const { return m_delegate; }
    void setDelegate(ChartViewDelegate* delegate) { m_delegate = delegate; }

    void setDescriptionText(const QString& text) { assign(common().descriptionText, text); }
    const Legend& legend() const { return common().legend; }
    void setLegend(const Legend& legend) { assign(common().legend, legend); }

    /// Highlights exactly these, none for an empty list. The delegate is not told: it is the program speaking.
    void highlightValues(const QList<Highlight>& highlights);

    /// Grows the chart in, durations in seconds. The chart is complete at once where no item shows it.
    void animate(double xAxisDuration, double yAxisDuration, ChartEasingOption easingOption);

    /// The same along x alone, as lines grow.
    void animate(double xAxisDuration, ChartEasingOption easingOption = ChartEasingOption::EaseInOutQuart)
    {
        animate(xAxisDuration, 0, easingOption);
    }

    /// What a screen reader says instead of the picture; empty when there is nothing to say.
    virtual QString accessibleText() const = 0;
    /// The same of the entry that is highlighted first; empty without one.
    virtual QString selectedText() const = 0;

Q_SIGNALS:
    void hiddenChanged();
    /// Anything that the picture depends on.
    void changed();
    /// The data, beside `changed`.
    void dataChanged();
    void selectionChanged();
    void animateRequested(const lodestar::ChartAnimation& animation);

protected:
    /// The part of the subclass's model that all charts have.
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
    /// The user's selection of an entry, or of nothing: the delegate is told.
    void select(const std::optional<ChartEntry>& entry, const Highlight& highlight);

private:
    ChartViewDelegate* m_delegate = nullptr;
    bool m_hidden = false;
};

} // namespace lodestar
