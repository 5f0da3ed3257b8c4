// SPDX-License-Identifier: Apache-2.0
#include "Application/ShakeSensor.h"

#include <utility>

namespace lodestar
{

ShakeSensor::ShakeSensor(std::function<void()> shaken) : m_shaken(std::move(shaken))
{
    // On a device without an accelerometer Qt connects and starts a dummy instead.
    if (!m_sensor.connectToBackend() || m_sensor.identifier().startsWith("dummy") || m_sensor.identifier().isEmpty()) {
        return;
    }
    constexpr int samplesASecond = 50;
    m_sensor.setDataRate(samplesASecond);
    QObject::connect(&m_sensor, &QSensor::readingChanged, &m_sensor, [this] { read(); });
    m_sensor.start();
}

void ShakeSensor::read()
{
    const QAccelerometerReading* reading = m_sensor.reading();
    if (reading != nullptr &&
        m_detector.add({reading->x(), reading->y(), reading->z(), std::chrono::microseconds(reading->timestamp())})) {
        m_shaken();
    }
}

} // namespace lodestar
