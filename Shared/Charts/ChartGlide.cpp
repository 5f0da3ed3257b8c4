// SPDX-License-Identifier: Apache-2.0
#include "Charts/ChartGlide.h"

#include <utility>

namespace lodestar
{
namespace
{

constexpr int duration = 900; // In milliseconds.

} // namespace

ChartGlide::ChartGlide(std::function<void(double)> advance) : m_advance(std::move(advance))
{
    m_animation.setEasingCurve(QEasingCurve::OutCubic);
    m_animation.setDuration(duration);
    m_animation.setStartValue(0.0);
    // The curve starts three times as fast as its mean speed, so the end value is a third of the duration: the glide
    // then starts at exactly the finger's speed.
    m_animation.setEndValue(duration / 1000.0 / 3);
    QObject::connect(&m_animation, &QVariantAnimation::valueChanged, &m_animation, [this](const QVariant& value) {
        m_advance(value.toDouble() - m_gone);
        m_gone = value.toDouble();
    });
}

void ChartGlide::start()
{
    m_animation.stop();
    m_gone = 0;
    m_animation.start();
}

} // namespace lodestar
