// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/NotificationCenter.h"

#include <QMetaObject>

#include <functional>
#include <vector>

namespace lodestar
{

/// Tells a screen, while it is seen, that what it says of readings may have changed: a reading ended, time has passed,
/// or the watch has another interval. Main thread.
class ReadingWatch
{
public:
    ReadingWatch() = default;
    ReadingWatch(const ReadingWatch&) = delete;
    ReadingWatch& operator=(const ReadingWatch&) = delete;
    ~ReadingWatch() { end(); }

    /// Calls the function at once, too: much may have changed while nobody looked.
    void begin(const std::function<void()>& changed);
    void end();

private:
    std::vector<NotificationCenter::Observation> m_observations;
    QMetaObject::Connection m_clock;
};

} // namespace lodestar
