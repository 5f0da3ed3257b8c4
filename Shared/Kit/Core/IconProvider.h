// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QQuickImageProvider>

namespace lodestar
{

/// Gives "image://icon/NAME/COLOUR": the icon NAME.svg of the application with its `currentColor` replaced. COLOUR is
/// rrggbb or aarrggbb; an icon with colours of its own ignores it. Thread-safe, because image readers run on any
/// thread.
class IconProvider : public QQuickImageProvider
{
public:
    IconProvider();
    /// Null for an unknown name. `requestedSize` is in device pixels; an empty one means the icon's own size.
    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;
};

} // namespace lodestar
