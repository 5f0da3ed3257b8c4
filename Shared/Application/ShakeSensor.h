// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <memory>

namespace lodestar
{

/// Calls the function on the main thread when the device is shaken. Without an accelerometer it never does. Main
/// thread.
class ShakeSensor
{
public:
    explicit ShakeSensor(std::function<void()> shaken);
    ~ShakeSensor();
    ShakeSensor(const ShakeSensor&) = delete;
    ShakeSensor& operator=(const ShakeSensor&) = delete;

    /// Whether the device has an accelerometer.
    bool isThere() const;

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace lodestar
