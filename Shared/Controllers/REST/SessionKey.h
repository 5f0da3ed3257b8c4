// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string>

namespace lodestar
{

/// A console's session key; none when the console gave none or none is stored.
using SessionKey = std::optional<std::string>;

} // namespace lodestar
