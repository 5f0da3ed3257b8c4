// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QVariantAnimation>

#include <functional>

namespace lodestar
{

/// Moves a thrown chart on after the finger has left: at the finger's speed first, then ever slower, until it rests.
class ChartGlide
{
public:
    /// At every step, `advance` gets a time in seconds: the time that the step's way would take at the finger's full
    /// speed.
    explicit ChartGlide(std::function<void(double seconds)> advance);

    void start();
    void stop() { m_animation.stop(); }
    bool isRunning() const { return m_animation.state() == QAbstractAnimation::Running; }

private:
    std::function<void(double)> m_advance;
    QVariantAnimation m_animation; ///< Seconds at full speed that `advance` was told of.
    double m_gone = 0;
};

} // namespace lodestar
