// SPDX-License-Identifier: Apache-2.0
#include "Charts/ChartItem.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTouchEvent>

#include <cmath>

namespace lodestar
{
namespace
{

constexpr double focusWidth = 2; // Width of the focus ring, within the chart's edge.
constexpr double focusRadius = 12;

} // namespace

ChartItem::ChartItem(QQuickItem* parent) : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
    setActiveFocusOnTab(true);
    setAcceptedMouseButtons(Qt::LeftButton);
    setAcceptTouchEvents(true);
    connect(this, &ChartItem::styleChanged, this, &ChartItem::refresh);
    connect(&m_growIn, &QVariantAnimation::valueChanged, this, [this] { update(); });
    m_growIn.setStartValue(0.0);
}

void ChartItem::attach(ChartView* view, const ChartRenderer* renderer)
{
    if (m_view != nullptr) {
        m_view->disconnect(this);
    }
    endGesture();
    rest();
    m_view = view;
    m_renderer = renderer;
    m_growIn.stop();
    if (view != nullptr) {
        connect(view, &ChartView::changed, this, &ChartItem::refresh);
        // A motion that began over the old data must not move the new data.
        connect(view, &ChartView::dataChanged, this, &ChartItem::rest);
        connect(view, &ChartView::hiddenChanged, this, [this] { setVisible(!m_view->isHidden()); });
        connect(view, &ChartView::animateRequested, this, &ChartItem::grow);
        connect(view, &QObject::destroyed, this, [this] { update(); });
        setVisible(!view->isHidden());
    }
    refresh();
    Q_EMIT outletChanged();
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
    if (m_visualFocus) {
        constexpr double inset = focusWidth / 2;
        painter->setPen(QPen(m_focusColor, focusWidth));
        painter->setBrush(Qt::NoBrush);
        painter->drawRoundedRect(boundingRect().adjusted(inset, inset, -inset, -inset), focusRadius - inset,
                                 focusRadius - inset);
    }
}

void ChartItem::setVisualFocus(bool focus)
{
    if (m_visualFocus != focus) {
        m_visualFocus = focus;
        update();
    }
}

void ChartItem::focusInEvent(QFocusEvent* event)
{
    QQuickPaintedItem::focusInEvent(event);
    setVisualFocus(event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason);
}

void ChartItem::focusOutEvent(QFocusEvent* event)
{
    QQuickPaintedItem::focusOutEvent(event);
    setVisualFocus(false);
}

void ChartItem::endGesture()
{
    forget();
    setKeepMouseGrab(false);
    setKeepTouchGrab(false);
}

void ChartItem::mousePressEvent(QMouseEvent* event)
{
    press(event->position(), event->timestamp());
}

void ChartItem::mouseMoveEvent(QMouseEvent* event)
{
    setKeepMouseGrab(move(event->position(), event->timestamp()));
}

void ChartItem::mouseReleaseEvent(QMouseEvent* event)
{
    release(event->timestamp());
    endGesture();
}

void ChartItem::mouseUngrabEvent()
{
    endGesture();
}

void ChartItem::touchEvent(QTouchEvent* event)
{
    const QList<QEventPoint>& points = event->points();
    if (event->type() == QEvent::TouchCancel || points.isEmpty()) {
        endGesture();
        return;
    }
    event->accept();
    const QEventPoint& first = points.first();
    const bool firstLeft = first.state() == QEventPoint::Released;
    if (points.size() > 1) {
        const QEventPoint& second = points.at(1);
        const bool secondLeft = second.state() == QEventPoint::Released;
        if (firstLeft && secondLeft) {
            endGesture();
        } else if (firstLeft || secondLeft) {
            leaveOne((firstLeft ? second : first).position(), event->timestamp());
        } else if (moveTwo(first.position(), second.position())) {
            setKeepTouchGrab(true);
        }
    } else if (first.state() == QEventPoint::Pressed) {
        press(first.position(), event->timestamp());
    } else if (firstLeft) {
        release(event->timestamp());
        endGesture();
    } else if (move(first.position(), event->timestamp())) {
        setKeepTouchGrab(true);
    }
}

void ChartItem::touchUngrabEvent()
{
    endGesture();
}

void ChartItem::keyPressEvent(QKeyEvent* event)
{
    event->setAccepted(m_view != nullptr && pressKey(*event));
}

} // namespace lodestar
