// SPDX-License-Identifier: Apache-2.0
#include "Feedback/UI/SketchView.h"

#include <QMouseEvent>

namespace lodestar
{

SketchView::SketchView(QQuickItem* parent) : QQuickPaintedItem(parent)
{
    setAcceptedMouseButtons(Qt::LeftButton);
    setKeepMouseGrab(true); // a stroke must not scroll the page below
    setAntialiasing(true);
}

void SketchView::setSketch(Sketch* sketch)
{
    if (m_sketch == sketch) {
        return;
    }
    if (m_sketch) {
        m_sketch->disconnect(this);
    }
    m_sketch = sketch;
    if (sketch != nullptr) {
        connect(sketch, &Sketch::marksChanged, this, [this] { update(); });
    }
    update();
    Q_EMIT sketchChanged();
}

/// How many of this item's points one pixel of the picture takes.
double SketchView::scale() const
{
    return m_sketch && m_sketch->pictureSize().width() > 0 ? width() / m_sketch->pictureSize().width() : 0;
}

void SketchView::paint(QPainter* painter)
{
    if (scale() > 0) {
        painter->scale(scale(), scale());
        m_sketch->paint(*painter);
    }
}

void SketchView::mousePressEvent(QMouseEvent* event)
{
    if (scale() > 0) {
        m_sketch->begin(event->position() / scale());
    }
}

void SketchView::mouseMoveEvent(QMouseEvent* event)
{
    if (scale() > 0) {
        m_sketch->extend(event->position() / scale());
    }
}

void SketchView::mouseReleaseEvent(QMouseEvent*)
{
    if (m_sketch) {
        m_sketch->end();
    }
}

void SketchView::mouseUngrabEvent()
{
    if (m_sketch) {
        m_sketch->end();
    }
}

} // namespace lodestar
