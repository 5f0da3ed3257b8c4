// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace lodestar::fuzz
{

/// Ends the process, so that the fuzzer keeps the input, with what was expected on standard error.
inline void require(bool holds, std::string_view expectation, std::string_view detail = {})
{
    if (!holds) {
        std::fprintf(stderr, "expected: %.*s\n%.*s\n", static_cast<int>(expectation.size()), expectation.data(),
                     static_cast<int>(detail.size()), detail.data());
        std::abort();
    }
}

} // namespace lodestar::fuzz
