// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QVariantMap>

class QQmlComponent;
class QQuickItem;

namespace lodestar
{

/// Makes an item of the component with these initial values, as large as its parent, which owns it. The item gets its
/// parent, and so its window, before its bindings are evaluated; otherwise they would be evaluated again for the
/// window's width and screen. Null when the component makes no item or is not ready; the component then tells the
/// error.
QQuickItem* makeItem(QQmlComponent& component, const QVariantMap& properties, QQuickItem& parent);

} // namespace lodestar
