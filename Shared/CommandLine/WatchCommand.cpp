// SPDX-License-Identifier: Apache-2.0
#include "CommandLine/Commands.h"
#include "CommandLine/Failure.h"
#include "CommandLine/Json.h"
#include "CommandLine/PlainText.h"
#include "CommandLine/Texts.h"
#include "CommandLine/Words.h"
#include "Fleet/History.h"
#include "Fleet/WatchSettingName.h"
#include "Fleet/WatchSettings.h"
#include "Fleet/WatchSurroundings.h"

#include <chrono>
#include <memory>
#include <nlohmann/json.hpp>

namespace lodestar
{
namespace
{

using Texts::say;

/// What a person asked for; what was not said is as the store's Watch has it.
struct Plan {
    FleetChoice choice;
    std::chrono::seconds every{};
    std::optional<int> times;
};

Result<Plan> planOf(const Arguments& arguments)
{
    const WatchSettings settings = WatchSettings::ofText(History::shared().setting(watchSettingName).value_or(""));
    Plan plan;
    plan.choice.named = arguments.values("--console");
    plan.choice.isByHand = !plan.choice.named.empty();
    if (plan.choice.named.empty()) {
        plan.choice.without = settings.without;
    }
    const Result<std::optional<std::chrono::seconds>> every = arguments.time("--every");
    if (!every) {
        return every.error();
    }
    plan.every = every.value().value_or(settings.every);
    const Result<std::optional<int>> times = arguments.number("--times");
    if (!times) {
        return times.error();
    }
    plan.times = times.value();
    if (plan.times == 0) {
        return misuse(say(TEXT("CommandLine", "--times takes a number from 1 on.")));
    }
    if (arguments.has("--csv")) {
        return misuse(say(TEXT("CommandLine", "watch writes lines of text, or of JSON with --json.")));
    }
    return plan;
}

/// As wide as the wider of the two words, so that what follows stands in a column.
std::string wordOf(ChangeSense sense)
{
    const std::string worse = say(TEXT("lodestar::ChangeText", "worse"));
    const std::string better = say(TEXT("lodestar::ChangeText", "better"));
    const std::string word = sense == ChangeSense::Worse    ? worse
                             : sense == ChangeSense::Better ? better
                                                            : std::string();
    return word + std::string(std::max(columnsOf(worse), columnsOf(better)) - columnsOf(word) + 1, ' ');
}

std::string lineOf(const Change& change, const Terminal& terminal)
{
    const std::string name = Words::name(change);
    std::string text = name + (name.empty() ? "" : ": ") + Words::sentence(change);
    if (name != change.console) {
        text += " (" + change.console + ")";
    }
    const Ink ink = change.sense == ChangeSense::Worse    ? Ink::Error
                    : change.sense == ChangeSense::Better ? Ink::Good
                                                          : Ink::None;
    return Words::clock(change.seen) + " " + terminal.inked(wordOf(change.sense), ink) + plainText(text) + "\n";
}

/// One reading and what it changed. Consoles are told of on standard error only while they differ from before.
class Round
{
public:
    explicit Round(CommandContext& context) : m_context(context), m_surroundings(WatchSurroundings::ofProcess()) {}

    Result<Verdict> run(const FleetChoice& choice)
    {
        m_surroundings->beginCollecting();
        const Result<FleetPicture> picture = readFleet(m_context.session, choice);
        if (!picture) {
            return picture.error();
        }
        if (picture.value().consoles.empty()) {
            return failure(say(TEXT("CommandLine", "There are no consoles to watch.")));
        }
        const auto changes = std::make_shared<std::optional<std::vector<Change>>>();
        m_surroundings->endCollecting([changes](std::vector<Change> all) { *changes = std::move(all); });
        if (m_context.session.loop().runUntil([changes] { return changes->has_value(); }) != Loop::End::Met) {
            return interrupted();
        }
        for (const Change& change : **changes) {
            write(change);
        }
        for (const std::string& sentence : picture.value().leftOutSentences()) {
            if (m_told.insert(sentence).second) {
                complain(sentence);
            }
        }
        return picture.value().verdict();
    }

private:
    void write(const Change& change)
    {
        if (m_context.arguments.has("--json")) {
            Json::Value line = Json::answer("watch");
            line.update(Json::change(change));
            m_context.output.write(Json::line(line));
        } else {
            m_context.output.write(lineOf(change, m_context.output.terminal()));
        }
    }

    CommandContext& m_context;
    const std::shared_ptr<WatchSurroundings> m_surroundings;
    std::set<std::string> m_told;
};

} // namespace

Result<Verdict> watchConsoles(CommandContext& context)
{
    Result<Plan> asked = planOf(context.arguments);
    if (!asked) {
        return asked.error();
    }
    Plan& plan = asked.value();
    Loop& loop = context.session.loop();
    loop.watchOutput(context.output.descriptor());
    Round round(context);
    for (int number = 1;; ++number) {
        Result<Verdict> read = round.run(plan.choice);
        const bool wasEnded =
            !read && read.error().domain == commandLineErrorDomain && read.error().code > commandMisused;
        if (wasEnded || !context.output.result()) {
            return Verdict::Good; // it runs until it is ended
        }
        if (!read || number == plan.times) {
            return read;
        }
        plan.choice.isByHand = false; // the first reading alone was asked for by a person
        if (loop.runUntil([] { return false; }, plan.every) != Loop::End::TimedOut) {
            return Verdict::Good;
        }
    }
}

} // namespace lodestar
