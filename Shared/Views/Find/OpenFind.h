// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace lodestar
{

class ViewController;

/// Shows Find on the screen's stack, with the text in its field. When Find is the stack's last screen already, it takes
/// the text and the keyboard instead; an empty text leaves what is there. Does nothing without a stack. Main thread.
void openFind(const ViewController& from, const QString& text);

} // namespace lodestar
