// SPDX-License-Identifier: Apache-2.0
#pragma once

class QQmlEngine;

namespace lodestar
{

/// Makes `import Lodestar.Charts` work in the engine. Once an engine, before it loads anything.
void installCharts(QQmlEngine& engine);

} // namespace lodestar
