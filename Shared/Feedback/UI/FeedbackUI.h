// SPDX-License-Identifier: Apache-2.0
#pragma once

class QQmlEngine;

namespace lodestar
{

/// Makes `import Lodestar.Feedback` work in the engine, and the kit's import with it. Call it before the engine loads
/// anything.
void installFeedbackUI(QQmlEngine& engine);

} // namespace lodestar
