// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Change.h"
#include "Fleet/Findings.h"

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

/// The command line's sentences, in the language of Texts: those that the screens have, word for word. What consoles
/// say in them is made plain where it is shown. Pure, apart from the device's time zone.
namespace Words
{

/// "8 things need attention, 9 events are open", without what is 0.
std::string summary(const Findings& findings);
/// "3 things needed attention there before."; empty for none.
std::string beforeOffline(std::size_t number);
/// "Errors", "Not answering", "Warnings", "Open events".
std::string band(FindingBand band);
/// What is wrong: "System incomplete, LED on".
std::string sentence(const Finding& finding, WallTime now);

/// Why a console or feed could not be read: "connection refused".
std::string reason(const Error& error);
/// What an error says of itself, as far as it is known in the language.
std::string errorText(const Error& error);
/// "systems" and "Systems"; empty for a type that no console serves.
std::string feed(std::string_view type);
std::string feedAtStart(std::string_view type);
/// "Partitions not read", "4 of 6 feeds not read".
std::string feedsNotRead(const std::vector<std::string_view>& types);
/// "4 of 6 feeds not read".
std::string feedsNotRead(std::size_t feeds);

/// What a change is called, as a row of Changes is: the object, the console or "#1042 opened".
std::string name(const Change& change);
/// What changed: "running → error".
std::string sentence(const Change& change);
/// "25 min", "2 h 5 min", "3 days".
std::string duration(std::chrono::seconds lasted);

/// "09:41".
std::string clock(WallTime time);
/// "09:41", "yesterday 21:40", "Mon 21:40", "3 Mar", "3 Mar 2025".
std::string moment(WallTime then, WallTime now);
/// "since 09:41" or "at least since 09:41".
std::string since(const Since& since, WallTime now);

} // namespace Words

} // namespace lodestar
