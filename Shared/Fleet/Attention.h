// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Findings.h"
#include "Fleet/Readings.h"

#include <memory>
#include <vector>

namespace lodestar
{

/// What is known of the console now. Any thread.
ConsoleSnapshot snapshotOf(const CorvelRef& corvel);

/// The findings of all registered consoles as they are now, made anew off the main thread whenever a reading ends, the
/// list of consoles changes or memory does. One for the process. Main thread. A new picture posts "AttentionDidChange".
///
/// While consoles are read again, pictures keep the findings that there were before, so that rows stand still, and tell
/// only how far the reading is; things of deleted consoles and stops that a person expects leave at once. A calm is not
/// kept: each console's findings come as soon as it was read, however long another one does not answer.
class Attention
{
public:
    struct Picture {
        std::vector<ConsoleSnapshot> consoles; ///< in the order of the working list
        Findings findings;
        FleetReading fleet;
        WallTime made;
    };

    static Attention& shared();

    /// Never null; empty until the first picture is made.
    const std::shared_ptr<const Picture>& picture() const { return m_picture; }
    /// Asks for a new picture. Several calls in a row make one. While consoles are read, pictures take no more than a
    /// small part of a processor's time, and at most one a second is made while more than 1,000 are.
    void update();
    /// Lets go of a picture elsewhere: its last holder frees many findings, and feeds that have been read anew since.
    static void release(std::shared_ptr<const Picture> picture);
    /// For tests and pictures: shows these findings instead of the fleet's. Null: the fleet's again.
    void adopt(std::shared_ptr<const Picture> picture);

private:
    Attention();
    ~Attention() = default;
    void makeWhenDue();
    void make(const FleetReading& fleet);
    void show(std::shared_ptr<const Picture> picture);

    std::shared_ptr<const Picture> m_picture;
    struct State;
    const std::unique_ptr<State> m_state;
};

} // namespace lodestar
