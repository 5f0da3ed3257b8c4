// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

namespace lodestar
{

/// The keys of the settings among the user defaults. Every other key is the address of a console, under which its
/// session key is kept; texts under such keys are therefore kept out of logs and reports.
namespace Setting
{
inline constexpr const char* initialLoad = "initialLoad";         ///< the demonstration console was added once
inline constexpr const char* showedPreview = "showedPreview";     ///< the tour was seen to its end
inline constexpr const char* requirePassword = "requirePassword"; ///< the passcode is asked for at the start
/// True from the first step of a reset to its last, which removes this key with all the others. If the process ends in
/// between, the next start finishes the reset before it shows anything.
inline constexpr const char* resetUnderWay = "resetUnderWay";

inline constexpr std::array<std::string_view, 4> all = {initialLoad, showedPreview, requirePassword, resetUnderWay};

inline bool isOne(std::string_view key)
{
    return std::ranges::find(all, key) != all.end();
}
} // namespace Setting

} // namespace lodestar
