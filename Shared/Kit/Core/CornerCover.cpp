// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/CornerCover.h"

#include <QImage>
#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>

#include <cmath>
#include <memory>

namespace lodestar
{

namespace
{

/// The upper left corner: what lies outside the circle.
QImage cornerPicture(int pixels, const QColor& color)
{
    QImage picture(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    picture.fill(color);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawEllipse(0, 0, 2 * pixels, 2 * pixels);
    return picture;
}

/// The corners, which share a texture.
class CornersNode : public QSGNode
{
public:
    /// Takes all corners away, and makes the texture anew where it would look different.
    void begin(QQuickWindow& window, const QColor& color, int radius)
    {
        while (QSGNode* const corner = firstChild()) {
            removeChildNode(corner);
            delete corner;
        }
        const int pixels = static_cast<int>(std::ceil(radius * window.effectiveDevicePixelRatio()));
        if (!m_texture || color != m_color || pixels != m_pixels) {
            m_color = color;
            m_pixels = pixels;
            const QImage picture = cornerPicture(pixels, color);
            QQuickWindow::CreateTextureOptions options = QQuickWindow::TextureHasAlphaChannel;
            options |= QQuickWindow::TextureCanUseAtlas;
            m_texture.reset(window.createTextureFromImage(picture, options));
        }
    }
    void add(QQuickWindow& window, const QRectF& place, QSGImageNode::TextureCoordinatesTransformMode mirrored)
    {
        QSGImageNode* const corner = window.createImageNode();
        corner->setTexture(m_texture.get());
        corner->setFiltering(QSGTexture::Linear);
        corner->setTextureCoordinatesTransform(mirrored);
        corner->setRect(place);
        corner->setFlag(QSGNode::OwnedByParent);
        appendChildNode(corner);
    }

private:
    std::unique_ptr<QSGTexture> m_texture;
    QColor m_color;
    int m_pixels = 0;
};

} // namespace

CornerCover::CornerCover(QQuickItem* parent) : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    connect(this, &CornerCover::lookChanged, this, &QQuickItem::update);
}

void CornerCover::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    update();
}

void CornerCover::itemChange(ItemChange change, const ItemChangeData& value)
{
    QQuickItem::itemChange(change, value);
    if (change == ItemDevicePixelRatioHasChanged) {
        update();
    }
}

QSGNode* CornerCover::updatePaintNode(QSGNode* old, UpdatePaintNodeData* /*data*/)
{
    if (m_radius <= 0) {
        delete old;
        return nullptr;
    }
    auto* const node = old != nullptr ? static_cast<CornersNode*>(old) : new CornersNode;
    node->begin(*window(), m_color, m_radius);
    const double right = width() - m_radius;
    const double bottom = height() - m_radius;
    const QSizeF size(m_radius, m_radius);
    using Image = QSGImageNode;
    if (m_roundTop) {
        node->add(*window(), {QPointF(0, 0), size}, Image::NoTransform);
        node->add(*window(), {QPointF(right, 0), size}, Image::MirrorHorizontally);
    }
    if (m_roundBottom) {
        node->add(*window(), {QPointF(0, bottom), size}, Image::MirrorVertically);
        node->add(*window(), {QPointF(right, bottom), size},
                  Image::TextureCoordinatesTransformMode(Image::MirrorHorizontally | Image::MirrorVertically));
    }
    return node;
}

} // namespace lodestar
