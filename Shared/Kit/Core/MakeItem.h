// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QVariantMap>

class QQmlComponent;
class QQuickItem;

namespace lodestar
{

/// An item of the component with these first values, as large as its parent. It stands in the parent, and so in the
/// window, before its bindings are evaluated: made outside they would be once more, for the window's width and screen.
/// The parent owns it. Null when the component is no item or not ready; it says why.
QQuickItem* makeItem(QQmlComponent& component, const QVariantMap& properties, QQuickItem& parent);

} // namespace lodestar
