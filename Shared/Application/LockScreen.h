// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace lodestar
{

/// A screen that may stand in front of everything until somebody is let in.
class LockScreen
{
public:
    /// Whether anybody is kept out. The passcode screen passes on by itself where no passcode is required.
    virtual bool locks() const = 0;

protected:
    ~LockScreen() = default;
};

} // namespace lodestar
