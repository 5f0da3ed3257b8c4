// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QQuickImageProvider>

namespace lodestar
{

/// "image://shadow/RADIUS/BLUR/AARRGGBB": the soft shadow of a rounded box as a nine-piece image whose borders are
/// RADIUS + 2 × BLUR wide and whose middle is one pixel; the box starts BLUR inside. Painted, because the software
/// renderer has no effects. Thread-safe.
class ShadowProvider : public QQuickImageProvider
{
public:
    ShadowProvider();
    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;
};

} // namespace lodestar
