// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/ChartStyle.h"
#include "Charts/ChartView.h"

#include <QPointer>
#include <QQuickPaintedItem>
#include <QVariantAnimation>

namespace lodestar
{

/// What all chart items share: the style they draw with, the grow-in animation, repainting when (and only when)
/// something changed, and passing fingers, mouse and keys to the subclass. Nothing runs while the chart rests. Input
/// that a chart does not use is left to the page.
class ChartItem : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(QColor cardColor MEMBER m_cardColor NOTIFY styleChanged)
    Q_PROPERTY(QColor textColor MEMBER m_textColor NOTIFY styleChanged)
    Q_PROPERTY(QString fontFamily MEMBER m_fontFamily NOTIFY styleChanged)
    Q_PROPERTY(qreal textScale MEMBER m_textScale NOTIFY styleChanged)
    Q_PROPERTY(bool mirrored MEMBER m_mirrored NOTIFY styleChanged)
    Q_PROPERTY(bool reducedMotion MEMBER m_reducedMotion NOTIFY styleChanged)
    /// Colour of the ring that shows the keyboard focus.
    Q_PROPERTY(QColor focusColor MEMBER m_focusColor NOTIFY styleChanged)

public:
    explicit ChartItem(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;
    /// Whether the focus came by keyboard, so that the ring has to be shown.
    bool hasVisualFocus() const { return m_visualFocus; }
    bool isAnimating() const { return m_growIn.state() == QAbstractAnimation::Running; }

Q_SIGNALS:
    void outletChanged();
    void styleChanged();

protected:
    /// Connects the item to a view and to the renderer that draws it; null disconnects. The item owns neither. If the
    /// view dies first, the item stops using the renderer, which reads the view's model.
    void attach(ChartView* view, const ChartRenderer* renderer);

    /// One finger, or the mouse, was pressed. The position is in points of the item, the time in milliseconds.
    virtual void press(QPointF position, quint64 time) = 0;
    /// Returns whether the chart keeps the gesture from now on.
    virtual bool move(QPointF position, quint64 time) = 0;
    virtual void release(quint64 time) = 0;
    /// A second finger came down, or one of two fingers moved. Returns the same as `move`.
    virtual bool moveTwo(QPointF first, QPointF second) = 0;
    /// One of two fingers has left; the other is at `remaining`.
    virtual void leaveOne(QPointF remaining, quint64 time) = 0;
    /// The gesture was cancelled, or the page has taken it.
    virtual void forget() = 0;
    /// Returns whether the chart uses the key. Called only while there is a view.
    virtual bool pressKey(const QKeyEvent& event) = 0;
    /// Stops any motion that the user set off.
    virtual void rest() = 0;

    void componentComplete() override;
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseUngrabEvent() override;
    void touchEvent(QTouchEvent* event) override;
    void touchUngrabEvent() override;
    void keyPressEvent(QKeyEvent* event) override;

    bool isMotionReduced() const { return m_reducedMotion; }
    virtual ChartStyle style() const;
    /// The frame as the grow-in has it now, and the frame of the complete chart.
    ChartFrame currentFrame() const;
    ChartFrame completeFrame() const;

private:
    const ChartRenderer* renderer() const { return m_view != nullptr ? m_renderer : nullptr; }
    void grow(const ChartAnimation& animation);
    void refresh();
    void setVisualFocus(bool focus);
    void endGesture();

    QPointer<ChartView> m_view;
    const ChartRenderer* m_renderer = nullptr;
    ChartAnimation m_animation;
    QVariantAnimation m_growIn;
    QColor m_cardColor = Qt::white;
    QColor m_textColor{0x54, 0x5E, 0x6B};
    QColor m_focusColor{0x00, 0x72, 0xAD};
    QString m_fontFamily;
    qreal m_textScale = 1;
    bool m_mirrored = false;
    bool m_reducedMotion = false;
    bool m_visualFocus = false;
};

} // namespace lodestar
