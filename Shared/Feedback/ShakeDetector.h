// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>

namespace lodestar
{

/// Tells a shake from walking, dropping and turning the device, on the samples of its accelerometer: three strong
/// swings in turn against each other within less than a second. One a sensor, one thread.
class ShakeDetector
{
public:
    /// Metres per square second along the device's axes, gravity included, and the sensor's clock.
    struct Sample {
        double x = 0;
        double y = 0;
        double z = 0;
        std::chrono::microseconds time{};
    };

    /// True for the sample that completes a shake. A shake that goes on is not told twice.
    bool add(const Sample& sample);

private:
    struct Vector {
        double x = 0;
        double y = 0;
        double z = 0;
    };
    bool isReversal(const Vector& motion) const;

    bool m_started = false;
    Vector m_gravity; ///< slow average: what is left when the hand rests
    Vector m_lastSwing;
    int m_swings = 0;
    std::chrono::microseconds m_firstSwing{};
    std::chrono::microseconds m_lastTime{};
    std::chrono::microseconds m_quietUntil{};
};

} // namespace lodestar
