// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Reading.h"
#include "Tools/Stage/SceneStage.h"

namespace lodestar::scenes
{

/// Which moment the fleet of the story is shown at.
enum class Night {
    Morning,  ///< 09:43, after all that happens
    Clear,    ///< everything was read in full, and nothing is wrong
    Unknown,  ///< nothing known is wrong, but two consoles did not answer
    Updating, ///< as `Morning`, while three consoles are still being read
    Old,      ///< nothing was read for more than two hours
};

/// Fills the working list with six consoles that were read again and again over weeks, for the last time two minutes
/// ago, as the story Simulator/Stories/night.story tells. The readings, with their times, durations and certificates,
/// are made here, so that every picture is the same; feeds, findings, changes and memory are made as for real consoles.
void showNight(SceneStage& stage, Night night);
/// Likewise 500 consoles, with so much wrong that rows fold.
void showManyConsoles(SceneStage& stage);
/// No console, and nothing that was ever read.
void showNoConsoles(SceneStage& stage);

/// Puts records that have been read into the working list, and waits until everything that screens make of them is
/// there. The function makes them with their readings; it is called once as long as no other fleet is shown.
void showFleet(SceneStage& stage, int fleet, const std::function<std::vector<CorvelRef>()>& make);
/// Takes a reading of the console as the application takes one that has ended.
void endReading(const CorvelRef& corvel, const Reading& reading, const std::shared_ptr<const FeedDictionary>& feeds);

/// Sets the process's clock to the morning that the fleet is shown at, or back to the real time. The fleets above set
/// it.
void setMorningClock(bool morning);

} // namespace lodestar::scenes
