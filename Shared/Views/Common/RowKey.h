// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <functional>

namespace lodestar
{

/// What a row is about, as a number: the same for the same values, and as good as never the same for others.
template <typename... Values>
std::size_t rowKey(const Values&... values)
{
    constexpr std::size_t spread = 0x9e3779b97f4a7c15U;
    std::size_t key = 0;
    ((key ^= std::hash<Values>()(values) + spread + (key << 6U) + (key >> 2U)), ...);
    return key;
}

} // namespace lodestar
