// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace lodestar
{

/// Makes the QML module Lodestar.Charts known to the process. Call once before the engine is made; a static library's
/// module is otherwise left out by the linker.
void registerCharts();

} // namespace lodestar
