// SPDX-License-Identifier: Apache-2.0
#include "Feedback/UI/ScreenGrabber.h"

#include "Feedback/UI/Sketch.h"
#include "Kit/Core/Privacy.h"

#include <QQuickItem>
#include <QQuickPaintedItem>
#include <QQuickWindow>

#include <memory>
#include <vector>

namespace lodestar
{
namespace
{

constexpr double coverDepth = 1000;

class CoverItem : public QQuickPaintedItem
{
public:
    CoverItem(QQuickItem* covered, const QRectF& rect) : QQuickPaintedItem(covered)
    {
        setPosition(rect.topLeft());
        setSize(rect.size());
        setZ(coverDepth);
        setOpaquePainting(true);
    }
    void paint(QPainter* painter) override { Sketch::paintCover(*painter, boundingRect(), 1); }
};

/// Whether the item is a field that shows dots; every kind of text field has the property that tells.
bool hidesItsText(const QQuickItem* item)
{
    const QVariant mode = item->property("echoMode");
    return mode.isValid() && mode.toInt() != 0;
}

/// The part of the item that its content fills: for a text shorter than its item, the text's part.
QRectF contentRect(const QQuickItem* item)
{
    QRectF rect(0, 0, item->width(), item->height());
    const QVariant written = item->property("contentWidth");
    const QVariant alignment = item->property("effectiveHorizontalAlignment");
    if (written.isValid() && alignment.isValid() && !hidesItsText(item) && written.toDouble() < rect.width()) {
        const int side = alignment.toInt();
        const double room = rect.width() - written.toDouble();
        rect.setWidth(written.toDouble());
        rect.translate((side & Qt::AlignRight) != 0 ? room : (side & Qt::AlignHCenter) != 0 ? room / 2 : 0, 0);
    }
    return rect.adjusted(-2, 0, 2, 0);
}

void coverIn(QQuickItem* item, std::vector<std::unique_ptr<CoverItem>>& covers)
{
    if (!item->isVisible()) {
        return;
    }
    if (Privacy::covers(item) || hidesItsText(item)) {
        covers.push_back(std::make_unique<CoverItem>(item, contentRect(item)));
        return;
    }
    const QList<QQuickItem*> children = item->childItems();
    for (QQuickItem* child : children) {
        coverIn(child, covers);
    }
}

} // namespace

QImage grabCovered(QQuickWindow& window)
{
    std::vector<std::unique_ptr<CoverItem>> covers;
    coverIn(window.contentItem(), covers);
    return window.grabWindow();
}

} // namespace lodestar
