// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/PlotChartItem.h"

#include <QBasicTimer>
#include <QList>

namespace lodestar
{

/// A chart with axes that can be read. The mouse reads where it hovers; a finger that rests reads, follows the line of
/// time and ends the reading when it leaves. Left and Right step from entry to entry, Home and End go to the outermost;
/// with Shift, the arrows move a zoomed plot. Escape ends a reading by keys, then a zoom. The item draws no marks: it
/// tells where they belong.
class ReadableChartItem : public lodestar::PlotChartItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QRectF plotArea READ plotArea NOTIFY placed)
    /// Whether an entry in view is read.
    Q_PROPERTY(bool reading READ isReading NOTIFY placed)
    Q_PROPERTY(qreal readX READ readX NOTIFY placed)
    /// Heights of the values that are read, one a data set, bars before lines; not a number for none in view.
    Q_PROPERTY(QList<qreal> readYs READ readYs NOTIFY placed)

public:
    explicit ReadableChartItem(QQuickItem* parent = nullptr);

    const QRectF& plotArea() const { return m_plot; }
    bool isReading() const { return m_isReading; }
    qreal readX() const { return m_readX; }
    const QList<qreal>& readYs() const { return m_readYs; }
    /// Returns to the whole of a zoomed plot.
    Q_INVOKABLE void showWhole() { glideTo({}); }

Q_SIGNALS:
    void placed();

protected:
    void componentComplete() override;
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
    void hoverEnterEvent(QHoverEvent* event) override { hoverMoveEvent(event); }
    void hoverMoveEvent(QHoverEvent* event) override;
    void hoverLeaveEvent(QHoverEvent* event) override;
    void touchEvent(QTouchEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void press(QPointF position, quint64 time) override;
    bool move(QPointF position, quint64 time) override;
    bool moveTwo(QPointF first, QPointF second) override;
    void forget() override;
    bool pressKey(const QKeyEvent& event) override;

private:
    /// What reads the chart.
    enum class Reader { None, Pointer, Finger, Keys };

    void follow();
    void place();
    void readAt(QPointF position, Reader reader);
    void stopReading();
    bool stepByKey(bool forward);
    bool readEnd(double index);
    /// Moves a zoomed plot so far that the entry that is read is in view.
    void bringIntoView();

    QRectF m_plot;
    bool m_isReading = false;
    qreal m_readX = 0;
    QList<qreal> m_readYs;
    Reader m_reader = Reader::None;
    QBasicTimer m_rest; ///< Runs while a finger that came down has not moved.
    bool m_isFingerDown = false;
    QPointF m_pressed;
    QPointF m_hovered; ///< Where a pointer or a finger was last, in the scene.
};

} // namespace lodestar
