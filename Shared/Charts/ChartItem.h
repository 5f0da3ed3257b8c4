// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/ChartStyle.h"
#include "Charts/ChartView.h"

#include <QPointer>
#include <QQuickPaintedItem>
#include <QVariantAnimation>

namespace lodestar
{

/// What every chart item has: the surroundings it is drawn for, the grow-in, repainting when something changed and
/// only then, and the way of fingers, mouse and keys to what a subclass does with them. Nothing runs while the chart
/// rests. What a chart has no use for is left to the page.
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
    /// Of the ring that shows the keyboard's focus.
    Q_PROPERTY(QColor focusColor MEMBER m_focusColor NOTIFY styleChanged)

public:
    explicit ChartItem(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;
    /// Whether the keyboard brought the focus here, so that it has to be shown.
    bool hasVisualFocus() const { return m_visualFocus; }
    bool isAnimating() const { return m_growIn.state() == QAbstractAnimation::Running; }

Q_SIGNALS:
    void outletChanged();
    void styleChanged();

protected:
    /// Connects the item to a view and what draws it, or takes it off for null. Neither is owned; the view may die
    /// first, and the renderer, which reads the view's model, then falls silent.
    void attach(ChartView* view, const ChartRenderer* renderer);

    /// One finger or the mouse, in points of the item and milliseconds.
    virtual void press(QPointF position, quint64 time) = 0;
    /// Whether the gesture is the chart's own from now on.
    virtual bool move(QPointF position, quint64 time) = 0;
    virtual void release(quint64 time) = 0;
    /// A second finger came down, or one of the two moved; the same answer.
    virtual bool moveTwo(QPointF first, QPointF second) = 0;
    /// One of two fingers has left.
    virtual void leaveOne(QPointF remaining, quint64 time) = 0;
    /// The gesture ends, or is the page's.
    virtual void forget() = 0;
    /// Whether the chart has a use for the key; asked only with a view.
    virtual bool pressKey(const QKeyEvent& event) = 0;
    /// Ends whatever motion the user set off.
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
    /// The frame at the grow-in's present place, and the complete one.
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
