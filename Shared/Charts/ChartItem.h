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
/// only then. Nothing runs while the chart rests.
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
    Q_PROPERTY(bool visualFocus READ hasVisualFocus NOTIFY visualFocusChanged)

public:
    explicit ChartItem(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;
    /// Whether the keyboard brought the focus here, so that it has to be shown.
    bool hasVisualFocus() const { return m_visualFocus; }
    bool isAnimating() const { return m_growIn.state() == QAbstractAnimation::Running; }

Q_SIGNALS:
    void styleChanged();
    void visualFocusChanged();

protected:
    virtual const ChartRenderer* renderer() const = 0;
    /// Connects the item to a view, or takes it off for null. Not owned; it may die first.
    void attach(ChartView* view);
    void componentComplete() override;
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

    bool isMotionReduced() const { return m_reducedMotion; }
    virtual ChartStyle style() const;
    /// The frame at the grow-in's present place, and the complete one.
    ChartFrame currentFrame() const;
    ChartFrame completeFrame() const;

private:
    void grow(const ChartAnimation& animation);
    void refresh();

    QPointer<ChartView> m_view;
    ChartAnimation m_animation;
    QVariantAnimation m_growIn;
    QColor m_cardColor = Qt::white;
    QColor m_textColor{0x54, 0x5E, 0x6B};
    QString m_fontFamily;
    qreal m_textScale = 1;
    bool m_mirrored = false;
    bool m_reducedMotion = false;
    bool m_visualFocus = false;
};

} // namespace lodestar
