// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>
#include <QImage>
#include <QObject>
#include <QPainter>
#include <QPolygonF>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

#include <vector>

namespace lodestar
{

/// A picture and the marks drawn on it: strokes of the pen and covers. Marks are in the picture's pixels, so they stay
/// in place at whatever size the picture is shown. Main thread.
class Sketch : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by controllers")
    Q_PROPERTY(Tool tool READ tool WRITE setTool NOTIFY toolChanged)
    Q_PROPERTY(int color READ color WRITE setColor NOTIFY toolChanged)
    Q_PROPERTY(QVariantList colors READ colorList CONSTANT)
    Q_PROPERTY(bool canUndo READ canUndo NOTIFY marksChanged)
    Q_PROPERTY(QSizeF pictureSize READ pictureSize CONSTANT)

public:
    enum class Tool { Pen, Cover };
    Q_ENUM(Tool)

    explicit Sketch(QImage picture, QObject* parent = nullptr);

    Tool tool() const { return m_tool; }
    void setTool(Tool tool);
    /// The pen's colour: an index of `colors`.
    int color() const { return m_color; }
    void setColor(int color);
    static QList<QColor> colors();
    static QVariantList colorList();
    bool canUndo() const { return !m_marks.empty(); }
    QSizeF pictureSize() const { return m_picture.size(); }

    /// One mark of the tool, from touching down to lifting. Points outside the picture move to its edge.
    void begin(QPointF point);
    void extend(QPointF point);
    void end();
    Q_INVOKABLE void undo();

    /// Paints the opaque, hatched bar that hides everything beneath. `unit` is the length of a point in the painter's
    /// units.
    static void paintCover(QPainter& painter, const QRectF& rect, double unit);
    /// Paints picture and marks, in the picture's pixels.
    void paint(QPainter& painter) const;
    /// The picture with the marks drawn into its pixels: a cover is no layer that could be lifted.
    QImage composed() const;

Q_SIGNALS:
    void toolChanged();
    void marksChanged();

private:
    struct Mark {
        Tool tool = Tool::Pen;
        QColor color;
        QPolygonF points; ///< a cover has two: opposite corners
    };
    QPointF within(QPointF point) const;

    QImage m_picture;
    Tool m_tool = Tool::Pen;
    int m_color = 0;
    std::vector<Mark> m_marks;
    bool m_drawing = false;
};

} // namespace lodestar
