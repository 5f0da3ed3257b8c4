// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QVariantAnimation>

#include <functional>

namespace lodestar
{

/// What a thrown chart does after the finger has left: it goes on at the finger's speed, ever slower, and comes to
/// rest.
class ChartGlide
{
public:
    /// `advance` is told how long the chart would have gone on at full speed since the last call, in seconds.
    explicit ChartGlide(std::function<void(double seconds)> advance);

    void start();
    void stop() { m_animation.stop(); }
    bool isRunning() const { return m_animation.state() == QAbstractAnimation::Running; }

private:
    std::function<void(double)> m_advance;
    QVariantAnimation m_animation; ///< Of the seconds gone by at full speed.
    double m_gone = 0;
};

} // namespace lodestar
