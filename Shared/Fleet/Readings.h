// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/Model/Corvel.h"
#include "Fleet/Reading.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>

namespace lodestar
{

/// How complete and how old the picture of all registered consoles is.
struct FleetReading {
    std::size_t consoles = 0;
    std::size_t answeredInFull = 0;
    std::size_t incomplete = 0;
    std::size_t offline = 0;
    std::size_t notTried = 0;
    /// Consoles whose refresh is under way, and all consoles of the refreshes that have not all ended: "3 of 6" is
    /// `underWay - updating` of `underWay`. Both are 0 while nothing is read.
    std::size_t updating = 0;
    std::size_t underWay = 0;
    /// When the oldest and the newest of the consoles' last refreshes that were answered ended; none without one.
    std::optional<WallTime> from;
    std::optional<WallTime> until;
};

/// What was read of each console, and when. The refresh and the screens' own fetches report here; screens and findings
/// read. Any thread, unless a function says otherwise. Each change posts "ReadingsDidChange" on the main thread, once
/// for all changes that wait there.
class Readings
{
public:
    static Readings& shared();

    /// Never null: a console that was never refreshed has a reading that says so.
    std::shared_ptr<const Reading> of(const Corvel& corvel) const;
    /// Over the working list. Main thread.
    FleetReading ofFleet() const;

    /// Says that a refresh of the console begins.
    void begin(const CorvelRef& corvel);
    /// Replaces the console's reading by that of a refresh that has ended. What a refresh cannot know by itself (the
    /// last complete one, since when the console is offline, when a missing feed was last read, what the certificate
    /// was before) is taken from the reading before.
    void end(const CorvelRef& corvel, Reading reading);
    /// Adds a screen's own attempt at one feed.
    void addFeed(const CorvelRef& corvel, FeedReading feed);
    /// Adds a screen's look-up through a link of the feed of that type. A failure counts as the feed's until the feed
    /// or the console is read again or the same link answers; a success is told only for that.
    void addLookUp(const CorvelRef& corvel, const std::string& link, const FeedReading& lookUp);
    /// Adds what a screen's look-up told of the state of a group's member.
    void addMember(const CorvelRef& corvel, const std::string& identity, bool isInError);
    /// Says what the authorities say of a certificate that the console's reading shows.
    void didExamine(const Corvel& corvel, const ShownCertificate& examined);
    /// Gives what earlier runs of the application knew. Does not replace what this run has seen.
    void restore(const CorvelRef& corvel, const Reading& before);
    void forget(const Corvel& corvel);
    void forgetAll();

private:
    Readings();
    ~Readings() = default;
    struct State;
    const std::unique_ptr<State> m_state;
};

} // namespace lodestar
