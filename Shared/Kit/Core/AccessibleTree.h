// SPDX-License-Identifier: Apache-2.0
#pragma once

class QAccessibleInterface;
class QQuickItem;

namespace lodestar
{

/// Gives windows and AccessibleItems their own descriptions for assistive programs. Qt's descriptions know no modality
/// and no actions beyond a button's, and they read lists in the order in which the rows were made. Once per process is
/// enough. Main thread.
void installAccessibleTree();

/// A new description of a text field that tells dots in place of the field's text.
QAccessibleInterface* describeSecureField(QQuickItem& field);

} // namespace lodestar
