// SPDX-License-Identifier: Apache-2.0
#include "Feedback/ShakeDetector.h"

#include <algorithm>
#include <cmath>

namespace lodestar
{

namespace
{

using namespace std::chrono_literals;

constexpr double strong = 11.0; ///< a little more than gravity once again; a brisk step stays below
constexpr int swingsOfAShake = 3;
constexpr auto withinTime = 900ms;
constexpr auto quietAfterwards = 1500ms;
constexpr auto gravityTime = 0.5; ///< seconds in which the average follows a turned device
constexpr auto lostTouch = 500ms; ///< a longer gap between samples makes the detector start again

} // namespace

bool ShakeDetector::isReversal(const Vector& motion) const
{
    return m_swings == 0 || motion.x * m_lastSwing.x + motion.y * m_lastSwing.y + motion.z * m_lastSwing.z < 0;
}

bool ShakeDetector::add(const Sample& sample)
{
    const auto passed = sample.time - m_lastTime;
    m_lastTime = sample.time;
    if (!m_started || passed < 0us || passed > lostTouch) {
        m_started = true;
        m_gravity = {sample.x, sample.y, sample.z};
        m_swings = 0;
        return false;
    }
    const Vector motion = {sample.x - m_gravity.x, sample.y - m_gravity.y, sample.z - m_gravity.z};
    const double share = std::min(1.0, std::chrono::duration<double>(passed).count() / gravityTime);
    m_gravity = {m_gravity.x + share * motion.x, m_gravity.y + share * motion.y, m_gravity.z + share * motion.z};

    if (m_swings > 0 && sample.time - m_firstSwing > withinTime) {
        m_swings = 0;
    }
    if (std::hypot(motion.x, motion.y, motion.z) < strong || !isReversal(motion)) {
        return false;
    }
    if (m_swings == 0) {
        m_firstSwing = sample.time;
    }
    m_lastSwing = motion;
    if (++m_swings < swingsOfAShake || sample.time < m_quietUntil) {
        return false;
    }
    m_swings = 0;
    m_quietUntil = sample.time + quietAfterwards;
    return true;
}

} // namespace lodestar
