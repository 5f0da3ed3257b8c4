// SPDX-License-Identifier: Apache-2.0
#pragma once

class QQmlEngine;

namespace lodestar
{

/// Makes `import Lodestar.Views` work in the engine, and the modules that Views needs. Call it once per engine, before
/// the engine loads anything.
void installViews(QQmlEngine& engine);

} // namespace lodestar
