// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QQuickImageProvider>

namespace lodestar
{

/// "image://icon/NAME/COLOUR": the drawing NAME.svg of the application's icons with `currentColor` replaced, COLOUR as
/// rrggbb or aarrggbb. Drawings that carry their colours ignore it. Thread-safe, as image readers run anywhere.
class IconProvider : public QQuickImageProvider
{
public:
    IconProvider();
    /// Null for an unknown name. The size asked for is in device pixels; without one the drawing's own holds.
    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;
};

} // namespace lodestar
