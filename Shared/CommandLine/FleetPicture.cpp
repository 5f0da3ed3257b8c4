// SPDX-License-Identifier: Apache-2.0
#include "CommandLine/FleetPicture.h"

#include "CommandLine/Failure.h"
#include "CommandLine/Terminal.h"
#include "CommandLine/Texts.h"
#include "CommandLine/Words.h"
#include "Fleet/Attention.h"
#include "Fleet/WatchLeftOut.h"
#include "Fleet/WatchSurroundings.h"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>
#include <memory>

namespace lodestar
{
namespace
{

using Texts::say;

/// Refreshes the consoles at once and waits for all of them.
Result<void> refresh(Session& session, WatchSurroundings& surroundings, const std::vector<CorvelRef>& corvels)
{
    const auto ended = std::make_shared<std::size_t>(0);
    for (const CorvelRef& corvel : corvels) {
        surroundings.refresh(corvel, [ended] { ++*ended; });
    }
    ProgressLine progress;
    const Loop::End end = session.loop().runUntil([&] {
        //: numbers of consoles
        progress.show(
            say(TEXT("CommandLine", "reading %1 of %2"), {std::to_string(*ended), std::to_string(corvels.size())}));
        return *ended == corvels.size();
    });
    return end == Loop::End::Met      ? session.awaitHistory()
           : end == Loop::End::Closed ? Result<void>(failure({}, commandOutputClosed))
                                      : Result<void>(interrupted());
}

} // namespace

bool FleetPicture::hasAll(std::string_view type) const
{
    return !consoles.empty() && std::ranges::all_of(consoles, [type](const ConsoleSnapshot& console) {
        const auto missing = console.reading->missingFeeds();
        const bool wasAnswered = console.reading->outcome == Reading::Outcome::Complete ||
                                 console.reading->outcome == Reading::Outcome::Partial;
        return wasAnswered && std::ranges::find(missing, type) == missing.end();
    });
}

Verdict FleetPicture::verdict() const
{
    const auto has = [this](FindingBand band) {
        return std::ranges::any_of(findings.list, [band](const Finding& each) { return bandOf(each.rank) == band; });
    };
    return has(FindingBand::Errors)     ? Verdict::Errors
           : !isComplete()              ? Verdict::Unknown
           : has(FindingBand::Warnings) ? Verdict::Warnings
                                        : Verdict::Good;
}

std::string FleetPicture::completeness() const
{
    return Texts::count(TEXTS("lodestar::FindingText", "%1 of %Ln consoles answered in full"), consoles.size(),
                        {std::to_string(complete)});
}

std::vector<std::string> FleetPicture::leftOutSentences() const
{
    std::vector<std::string> sentences;
    std::ranges::transform(leftOut, std::back_inserter(sentences), [](const CorvelRef& corvel) {
        return say(TEXT("CommandLine",
                        "%1 was left out: its certificate changed within an attempt. To take the new one, "
                        "name the console with --console."),
                   {calledName(*corvel)});
    });
    return sentences;
}

Result<FleetPicture> readFleet(Session& session, const FleetChoice& choice)
{
    Result<std::vector<CorvelRef>> chosen = session.consoles(choice.named);
    if (!chosen) {
        return chosen.error();
    }
    std::erase_if(chosen.value(), [&choice](const CorvelRef& corvel) {
        return choice.without.contains(corvel->address().value_or(""));
    });
    const auto surroundings = WatchSurroundings::ofProcess();
    WatchLeftOut leftOut(surroundings);
    leftOut.read();
    FleetPicture picture;
    std::vector<CorvelRef> asked;
    std::ranges::partition_copy(
        chosen.value(), std::back_inserter(asked), std::back_inserter(picture.leftOut),
        [&](const CorvelRef& corvel) { return choice.isByHand || !leftOut.contains(corvel->address().value_or("")); });
    if (const Result<void> read = refresh(session, *surroundings, asked); !read) {
        return read.error();
    }
    leftOut.notice();
    for (const CorvelRef& corvel : choice.isByHand ? asked : std::vector<CorvelRef>()) {
        leftOut.didRefreshByHand(*corvel);
    }
    std::ranges::transform(chosen.value(), std::back_inserter(picture.consoles), &snapshotOf);
    picture.made = std::chrono::system_clock::now();
    picture.findings = findingsOf(picture.consoles, picture.made);
    const auto count = [&picture](Reading::Outcome outcome) {
        return static_cast<std::size_t>(std::ranges::count_if(
            picture.consoles, [outcome](const ConsoleSnapshot& each) { return each.reading->outcome == outcome; }));
    };
    picture.complete = count(Reading::Outcome::Complete);
    picture.partial = count(Reading::Outcome::Partial);
    picture.offline = count(Reading::Outcome::Offline);
    return picture;
}

} // namespace lodestar
