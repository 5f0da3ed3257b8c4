// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace lodestar
{

/// The history's setting that keeps the text of the `WatchSettings`.
inline constexpr auto watchSettingName = "watch";

} // namespace lodestar
