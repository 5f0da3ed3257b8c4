// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace lodestar
{

class NavigationController;

/// Shows Find on the stack, with the text in its field. When Find is the stack's last screen already, it takes the text
/// and the keyboard instead; an empty text leaves what is there. Does nothing without a stack. Main thread.
void openFind(NavigationController* stack, const QString& text);

} // namespace lodestar
