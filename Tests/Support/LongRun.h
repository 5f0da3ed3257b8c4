// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdlib>

namespace lodestar
{

/// Whether `./test --long` runs the test.
inline bool isLongRun()
{
    return std::getenv("LODESTAR_LONG_RUN") != nullptr;
}

/// How often a test tries its luck: usually a few times, and as often as it should in the long run.
inline int rounds(int usually, int inTheLongRun)
{
    return isLongRun() ? inTheLongRun : usually;
}

} // namespace lodestar
