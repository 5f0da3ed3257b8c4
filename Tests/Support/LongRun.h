// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdlib>

namespace lodestar
{

/// How often a test tries its luck: usually a few times, and as often as it should in the long run (`./test --long`).
inline int rounds(int usually, int inTheLongRun)
{
    return std::getenv("LODESTAR_LONG_RUN") != nullptr ? inTheLongRun : usually;
}

} // namespace lodestar
