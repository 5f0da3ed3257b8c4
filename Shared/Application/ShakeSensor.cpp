// SPDX-License-Identifier: Apache-2.0
#include "Application/ShakeSensor.h"

#include "Feedback/ShakeDetector.h"

#include <QAccelerometer>

#include <utility>

namespace lodestar
{

struct ShakeSensor::State {
    QAccelerometer sensor;
    ShakeDetector detector;
    std::function<void()> shaken;

    void read()
    {
        const QAccelerometerReading* reading = sensor.reading();
        if (reading != nullptr &&
            detector.add({reading->x(), reading->y(), reading->z(), std::chrono::microseconds(reading->timestamp())})) {
            shaken();
        }
    }
};

ShakeSensor::ShakeSensor(std::function<void()> shaken) : m_state(std::make_unique<State>())
{
    m_state->shaken = std::move(shaken);
    QAccelerometer& sensor = m_state->sensor;
    // On a device without an accelerometer Qt connects and starts a dummy instead.
    if (!sensor.connectToBackend() || sensor.identifier().startsWith("dummy") || sensor.identifier().isEmpty()) {
        return;
    }
    constexpr int samplesASecond = 50;
    sensor.setDataRate(samplesASecond);
    QObject::connect(&sensor, &QSensor::readingChanged, &sensor, [state = m_state.get()] { state->read(); });
    sensor.start();
}

ShakeSensor::~ShakeSensor() = default;

bool ShakeSensor::isThere() const
{
    return m_state->sensor.isActive();
}

} // namespace lodestar
