// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <memory>

namespace lodestar
{

/// Calls the function when the device is shaken, where it has an accelerometer. Main thread.
class ShakeSensor
{
public:
    explicit ShakeSensor(std::function<void()> shaken);
    ~ShakeSensor();
    ShakeSensor(const ShakeSensor&) = delete;
    ShakeSensor& operator=(const ShakeSensor&) = delete;

    /// Whether the device can be shaken at all.
    bool isThere() const;

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace lodestar
