// SPDX-License-Identifier: Apache-2.0
#pragma once

class QQmlEngine;

namespace lodestar
{

/// Makes `import Lodestar.Charts` work in the engine. Call it once per engine, before the engine loads anything.
void installCharts(QQmlEngine& engine);

} // namespace lodestar
