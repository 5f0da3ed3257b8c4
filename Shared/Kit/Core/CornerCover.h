// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>
#include <QQuickItem>

namespace lodestar
{

/// Covers the corners of the surface below it, so that the surface looks rounded. Each row of a list has one, so it is
/// one item and draws nothing but four small pictures.
class CornerCover : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool roundTop MEMBER m_roundTop NOTIFY lookChanged)
    Q_PROPERTY(bool roundBottom MEMBER m_roundBottom NOTIFY lookChanged)
    /// The colour behind the surface.
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY lookChanged)
    /// In points.
    Q_PROPERTY(int radius MEMBER m_radius NOTIFY lookChanged)

public:
    explicit CornerCover(QQuickItem* parent = nullptr);

Q_SIGNALS:
    void lookChanged();

protected:
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData& value) override;
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;

private:
    QColor m_color;
    int m_radius = 0;
    bool m_roundTop = true;
    bool m_roundBottom = true;
};

} // namespace lodestar
