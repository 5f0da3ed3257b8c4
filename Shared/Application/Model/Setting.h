// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

namespace lodestar
{

/// The settings among the user defaults, by their keys. The other keys are the addresses of consoles, under which
/// session keys are kept: a text under a key that is not listed here is kept out of logs and reports.
namespace Setting
{
inline constexpr const char* initialLoad = "initialLoad";         ///< the demonstration console was added once
inline constexpr const char* showedPreview = "showedPreview";     ///< the tour was seen to its end
inline constexpr const char* requirePassword = "requirePassword"; ///< the passcode is asked for at the start
/// Set from the first step of a reset to its last, which takes it away with all the rest: a reset that the process did
/// not survive is finished before anything is shown.
inline constexpr const char* resetUnderWay = "resetUnderWay";

inline constexpr std::array<std::string_view, 4> all = {initialLoad, showedPreview, requirePassword, resetUnderWay};

inline bool isOne(std::string_view key)
{
    return std::ranges::find(all, key) != all.end();
}
} // namespace Setting

} // namespace lodestar
