// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Result.h"

#include <optional>
#include <string>

namespace lodestar
{

/// Where passwords come from: a person at the terminal, who does not see what is typed, or the lines of a descriptor.
/// Never an argument nor the environment, where every process of the user could read them.
class Passwords
{
public:
    /// The terminal unless there is a descriptor.
    explicit Passwords(std::optional<int> descriptor) : m_descriptor(descriptor) {}

    /// The next password. A terminal asks with the words; a descriptor gives its next line, the lines' ends left out.
    Result<std::string> next(const std::string& words) const;
    /// Passes over a password that is not needed: a descriptor's next line, which may be empty or missing. A terminal
    /// asks nobody.
    Result<void> skip() const;

private:
    const std::optional<int> m_descriptor;
};

} // namespace lodestar
