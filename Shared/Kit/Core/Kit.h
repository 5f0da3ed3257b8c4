// SPDX-License-Identifier: Apache-2.0
#pragma once

class QQmlEngine;

namespace lodestar
{

/// Makes `import Lodestar.Kit` work in the engine: types, icons and fonts. Call once per engine, before the engine
/// loads anything.
void installKit(QQmlEngine& engine);

} // namespace lodestar
