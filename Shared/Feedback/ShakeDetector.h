// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>

namespace lodestar
{

/// Tells a shake from walking, dropping and turning the device, by the samples of its accelerometer. A shake is three
/// strong swings, each against the one before, in less than a second. One detector for each sensor; one thread.
class ShakeDetector
{
public:
    /// Metres per square second along the device's axes, gravity included, and the sensor's time.
    struct Sample {
        double x = 0;
        double y = 0;
        double z = 0;
        std::chrono::microseconds time{};
    };

    /// True for the sample that completes a shake. A shake that goes on is reported once.
    bool add(const Sample& sample);

private:
    struct Vector {
        double x = 0;
        double y = 0;
        double z = 0;
    };
    bool isReversal(const Vector& motion) const;

    bool m_started = false;
    Vector m_gravity; ///< slow average: the acceleration while the hand rests
    Vector m_lastSwing;
    int m_swings = 0;
    std::chrono::microseconds m_firstSwing{};
    std::chrono::microseconds m_lastTime{};
    std::chrono::microseconds m_quietUntil{};
};

} // namespace lodestar
