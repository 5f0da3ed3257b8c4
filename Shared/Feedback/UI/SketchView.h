// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Feedback/UI/Sketch.h"

#include <QPointer>
#include <QQuickPaintedItem>

namespace lodestar
{

/// Shows a sketch across the whole item and lets a person draw on it. The item should have the picture's proportions.
class SketchView : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(lodestar::Sketch* sketch READ sketch WRITE setSketch NOTIFY sketchChanged)

public:
    explicit SketchView(QQuickItem* parent = nullptr);

    Sketch* sketch() const { return m_sketch.data(); }
    void setSketch(Sketch* sketch);
    void paint(QPainter* painter) override;

Q_SIGNALS:
    void sketchChanged();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseUngrabEvent() override;

private:
    double scale() const;

    QPointer<Sketch> m_sketch;
};

} // namespace lodestar
