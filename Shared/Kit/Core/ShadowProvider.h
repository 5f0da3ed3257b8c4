// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QQuickImageProvider>

namespace lodestar
{

/// Gives "image://shadow/RADIUS/BLUR/AARRGGBB": the soft shadow of a rounded box as a nine-piece image. Its borders are
/// RADIUS + 2 × BLUR wide, its middle is one pixel, and the box starts BLUR inside. The shadow is painted here because
/// the software renderer has no effects. Thread-safe.
class ShadowProvider : public QQuickImageProvider
{
public:
    ShadowProvider();
    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;
};

} // namespace lodestar
