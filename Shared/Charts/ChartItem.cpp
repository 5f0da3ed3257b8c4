// SPDX-License-Identifier: Apache-2.0
#include "Charts/ChartItem.h"

#include <QFocusEvent>
#include <QGuiApplication>
#include <QPainter>

#include <cmath>

namespace lodestar
{

ChartItem::ChartItem(QQuickItem* parent) : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
    connect(this, &ChartItem::styleChanged, this, &ChartItem::refresh);
    connect(&m_growIn, &QVariantAnimation::valueChanged, this, [this] { update(); });
    m_growIn.setStartValue(0.0);
}

void ChartItem::attach(ChartView* view)
{
    if (m_view != nullptr) {
        m_view->disconnect(this);
    }
    m_view = view;
    m_growIn.stop();
    if (view != nullptr) {
        connect(view, &ChartView::changed, this, &ChartItem::refresh);
        connect(view, &ChartView::hiddenChanged, this, [this] { setVisible(!m_view->isHidden()); });
        connect(view, &ChartView::animateRequested, this, &ChartItem::grow);
        connect(view, &QObject::destroyed, this, [this] { update(); });
        setVisible(!view->isHidden());
    }
    refresh();
}

void ChartItem::refresh()
{
    if (isComponentComplete()) {
        const ChartRenderer* drawing = renderer();
        setImplicitHeight(drawing != nullptr ? std::ceil(drawing->preferredHeight(width(), style())) : 0);
    }
    update();
}

void ChartItem::componentComplete()
{
    QQuickPaintedItem::componentComplete();
    refresh();
}

void ChartItem::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry)
{
    QQuickPaintedItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.width() != oldGeometry.width()) {
        refresh();
    }
}

void ChartItem::grow(const ChartAnimation& animation)
{
    m_growIn.stop();
    m_animation = animation;
    if (!m_reducedMotion && animation.duration() > 0) {
        m_growIn.setEndValue(animation.duration());
        m_growIn.setDuration(static_cast<int>(std::ceil(std::min(animation.duration(), 60.0) * 1000)));
        m_growIn.start();
    }
    update();
}

ChartStyle ChartItem::style() const
{
    QFont font = QGuiApplication::font();
    if (!m_fontFamily.isEmpty()) {
        font.setFamily(m_fontFamily);
    }
    const double scale = std::isfinite(m_textScale) ? qBound(0.5, m_textScale, 4.0) : 1;
    return {m_cardColor, m_textColor, font, scale, m_mirrored ? Qt::RightToLeft : Qt::LeftToRight};
}

ChartFrame ChartItem::completeFrame() const
{
    return {size(), style(), {}};
}

ChartFrame ChartItem::currentFrame() const
{
    ChartFrame frame = completeFrame();
    if (isAnimating() && !m_reducedMotion) {
        frame.phases = m_animation.phasesAt(m_growIn.currentValue().toDouble());
    }
    return frame;
}

void ChartItem::paint(QPainter* painter)
{
    if (const ChartRenderer* drawing = renderer()) {
        drawing->draw(*painter, currentFrame());
    }
}

void ChartItem::focusInEvent(QFocusEvent* event)
{
    QQuickPaintedItem::focusInEvent(event);
    const Qt::FocusReason reason = event->reason();
    m_visualFocus = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
    Q_EMIT visualFocusChanged();
}

void ChartItem::focusOutEvent(QFocusEvent* event)
{
    QQuickPaintedItem::focusOutEvent(event);
    m_visualFocus = false;
    Q_EMIT visualFocusChanged();
}

} // namespace lodestar
