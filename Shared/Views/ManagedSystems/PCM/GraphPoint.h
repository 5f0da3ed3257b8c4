// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>

namespace lodestar
{

/// One point of a graph over time: the point type of the performance screens. The line chart has its own, by index.
class GraphPoint
{
public:
    using Time = std::chrono::system_clock::time_point;

    /// Zero, now.
    GraphPoint() = default;
    GraphPoint(Time date, double value) : m_time(date), m_value(value) {}

    Time time() const { return m_time; }
    void setTime(Time time) { m_time = time; }
    double value() const { return m_value; }
    void setValue(double value) { m_value = value; }

private:
    Time m_time = std::chrono::system_clock::now();
    double m_value = 0;
};

} // namespace lodestar
