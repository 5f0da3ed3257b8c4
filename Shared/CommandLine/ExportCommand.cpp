// SPDX-License-Identifier: Apache-2.0
#include "CommandLine/Commands.h"
#include "CommandLine/ExportFile.h"
#include "CommandLine/Failure.h"
#include "CommandLine/Listener.h"
#include "CommandLine/SystemMetrics.h"
#include "CommandLine/Texts.h"
#include "CommandLine/Words.h"
#include "Fleet/Exposition.h"
#include "Fleet/History.h"
#include "Fleet/WatchSettingName.h"
#include "Fleet/WatchSettings.h"

#include <algorithm>
#include <chrono>
#include <memory>
#include <mutex>
#include <set>
#include <utility>

namespace lodestar
{
namespace
{

using Texts::say;

constexpr std::size_t mostSystems = 100;

/// What a command line asks for: a file, or a place to listen.
struct Plan {
    std::string file; ///< "-" for standard output; empty to listen
    ListenAddress listen;
    std::chrono::seconds every{};
    FleetChoice choice;
    std::vector<std::string> systems;
};

Result<Plan> planOf(const Arguments& arguments)
{
    Plan plan;
    plan.file = arguments.value("--openmetrics").value_or("");
    const auto listen = arguments.value("--listen");
    if (plan.file.empty() != listen.has_value()) {
        return misuse(say(TEXT("CommandLine", "export takes either --openmetrics FILE or --listen PORT.")));
    }
    if (listen) {
        const Result<ListenAddress> address = ListenAddress::of(*listen);
        if (!address) {
            return address.error();
        }
        plan.listen = address.value();
    }
    const auto every = arguments.time("--every");
    if (!every) {
        return every.error();
    }
    if (every.value() && !listen) {
        return misuse(say(TEXT("CommandLine", "--every goes with --listen; a file is written once.")));
    }
    plan.every =
        every.value().value_or(WatchSettings::ofText(History::shared().setting(watchSettingName).value_or("")).every);
    if (arguments.has("--json") || arguments.has("--csv")) {
        return misuse(say(TEXT("CommandLine", "export writes OpenMetrics.")));
    }
    // Nobody is there who could say that a changed certificate is good, also when consoles are named.
    plan.choice = {arguments.values("--console"), {}, false};
    plan.systems = arguments.values("--system");
    if (plan.systems.size() > mostSystems) {
        return misuse(Texts::count(TEXTS("CommandLine", "export takes --system at most %Ln times."), mostSystems));
    }
    return plan;
}

/// What is served: the last reading, its ages made anew at most once a second.
class Shown
{
public:
    void set(std::shared_ptr<const Exposition> exposition)
    {
        const std::lock_guard lock(m_mutex);
        m_exposition = std::move(exposition);
        m_text = nullptr;
    }
    /// Null before the first reading.
    std::shared_ptr<const std::string> text()
    {
        const auto now = std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
        const std::lock_guard lock(m_mutex);
        if (m_exposition != nullptr && (m_text == nullptr || now != m_made)) {
            m_text = std::make_shared<const std::string>(m_exposition->textAt(now));
            m_made = now;
        }
        return m_text;
    }

private:
    std::mutex m_mutex;
    std::shared_ptr<const Exposition> m_exposition;
    std::shared_ptr<const std::string> m_text;
    std::chrono::sys_seconds m_made{};
};

/// Reads the fleet for a monitoring system. What a text cannot say of a named system is told on standard error, once.
class Exporter
{
public:
    Exporter(Session& session, const Plan& plan) : m_session(session), m_plan(plan) {}

    /// Fails when a signal came, or a named console is not registered.
    Result<Exposition> read()
    {
        const WallTime began = std::chrono::system_clock::now();
        Result<FleetPicture> picture = readFleet(m_session, m_plan.choice);
        if (!picture) {
            return picture.error();
        }
        for (const std::string& sentence : picture.value().leftOutSentences()) {
            tell(sentence);
        }
        Result<std::vector<ExposedSystem>> systems = systemsOf(picture.value());
        if (!systems) {
            return systems.error();
        }
        FleetPicture& read = picture.value();
        return Exposition({std::move(read.consoles), std::move(read.findings), std::move(read.leftOut),
                           std::move(systems.value()), began, read.made, LODESTAR_VERSION});
    }

private:
    void tell(const std::string& sentence)
    {
        if (m_told.insert(sentence).second) {
            complain(sentence);
        }
    }

    Result<std::vector<ExposedSystem>> systemsOf(const FleetPicture& picture)
    {
        FleetPicture answered; // what is old is not known
        std::ranges::copy_if(picture.consoles, std::back_inserter(answered.consoles), [](const ConsoleSnapshot& each) {
            return each.reading->outcome == Reading::Outcome::Complete ||
                   each.reading->outcome == Reading::Outcome::Partial;
        });
        std::vector<ExposedSystem> systems;
        std::vector<ChosenSystem> asked;
        std::vector<std::size_t> places;
        for (const std::string& name : m_plan.systems) {
            ExposedSystem& system = systems.emplace_back();
            system.asked = name;
            const Result<ChosenSystem> chosen = systemCalled(answered, name);
            if (!chosen) {
                tell(shownDescription(chosen.error()));
                continue;
            }
            system.corvel = chosen.value().corvel;
            system.name = chosen.value().name;
            system.identifier = chosen.value().identifier;
            asked.push_back(chosen.value());
            places.push_back(systems.size() - 1);
        }
        auto answers = fetchMetrics(m_session, asked);
        if (!answers) {
            return answers.error();
        }
        for (std::size_t i = 0; i < asked.size(); ++i) {
            Result<PerformanceMetrics>& answer = answers.value()[i];
            if (answer) {
                systems[places[i]].metrics = std::move(answer.value());
            } else {
                //: %1 a system, %2 why, as in "connection refused"
                tell(say(TEXT("CommandLine", "The metrics of %1 cannot be had: %2."),
                         {asked[i].name, Words::reason(answer.error())}));
            }
        }
        return systems;
    }

    Session& m_session;
    const Plan& m_plan;
    std::set<std::string> m_told;
};

bool wasEnded(const Error& error)
{
    return error.domain == commandLineErrorDomain && error.code == commandInterrupted;
}

/// Reads and serves until a signal comes, one reading after the other.
Result<Verdict> serve(CommandContext& context, const Plan& plan)
{
    const auto shown = std::make_shared<Shown>();
    const auto listener = Listener::open(plan.listen, [shown] { return shown->text(); });
    if (!listener) {
        return listener.error();
    }
    context.output.write(
        say(TEXT("CommandLine", "Listening on %1"), {"http://" + listener.value()->address().text() + "/metrics"}) +
        "\n");
    Exporter exporter(context.session, plan);
    while (true) {
        const Result<Exposition> exposition = exporter.read();
        if (!exposition) {
            return wasEnded(exposition.error()) ? Result<Verdict>(Verdict::Good) : exposition.error();
        }
        shown->set(std::make_shared<const Exposition>(exposition.value()));
        if (context.session.loop().runUntil([] { return false; }, plan.every) != Loop::End::TimedOut) {
            return Verdict::Good;
        }
    }
}

} // namespace

Result<Verdict> exportFleet(CommandContext& context)
{
    const Result<Plan> plan = planOf(context.arguments);
    if (!plan) {
        return plan.error();
    }
    if (plan.value().file.empty()) {
        return serve(context, plan.value());
    }
    const Result<Exposition> exposition = Exporter(context.session, plan.value()).read();
    if (!exposition) {
        return exposition.error();
    }
    const std::string text = exposition.value().textAt(std::chrono::system_clock::now());
    if (plan.value().file == "-") {
        context.output.write(text);
        return Verdict::Good;
    }
    const Result<void> written = replaceFile(plan.value().file, text);
    return written ? Result<Verdict>(Verdict::Good) : written.error();
}

} // namespace lodestar
