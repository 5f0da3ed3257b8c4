// SPDX-License-Identifier: Apache-2.0
#pragma once

class QQmlEngine;

namespace lodestar
{

/// Makes `import Lodestar.Feedback` work in the engine, and the kit with it. Before it loads anything.
void installFeedbackUI(QQmlEngine& engine);

} // namespace lodestar
