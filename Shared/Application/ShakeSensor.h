// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Feedback/ShakeDetector.h"

#include <QAccelerometer>

#include <functional>

namespace lodestar
{

/// Calls the function on the main thread when the device is shaken. Without an accelerometer it never does. Main
/// thread.
class ShakeSensor
{
public:
    explicit ShakeSensor(std::function<void()> shaken);

    /// Whether the device has an accelerometer.
    bool isThere() const { return m_sensor.isActive(); }

private:
    void read();

    const std::function<void()> m_shaken;
    ShakeDetector m_detector;
    QAccelerometer m_sensor;
};

} // namespace lodestar
