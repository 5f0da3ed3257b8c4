// SPDX-License-Identifier: Apache-2.0
#pragma once

class QQmlEngine;

namespace lodestar
{

/// Makes `import Lodestar.Kit` work in the engine: types, icons and fonts. Once an engine, before it loads anything.
void installKit(QQmlEngine& engine);

} // namespace lodestar
