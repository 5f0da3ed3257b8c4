// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>

namespace lodestar
{

/// One point of a graph over time, as the performance screens use it. The line chart has a point type of its own, by
/// index.
class GraphPoint
{
public:
    using Time = std::chrono::system_clock::time_point;

    /// A value of 0 at the present time.
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
