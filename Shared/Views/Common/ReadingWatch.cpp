// SPDX-License-Identifier: Apache-2.0
#include "Views/Common/ReadingWatch.h"

#include "Views/Common/AgeClock.h"

namespace lodestar
{

void ReadingWatch::begin(const std::function<void()>& changed)
{
    end();
    NotificationCenter& center = NotificationCenter::defaultCenter();
    for (const char* name : {"ReadingsDidChange", "WatchDidChange"}) {
        m_observations.push_back(center.addObserver(name, changed));
    }
    m_clock = QObject::connect(&AgeClock::shared(), &AgeClock::ticked, &AgeClock::shared(), changed);
    changed();
}

void ReadingWatch::end()
{
    m_observations.clear();
    QObject::disconnect(m_clock);
}

} // namespace lodestar
