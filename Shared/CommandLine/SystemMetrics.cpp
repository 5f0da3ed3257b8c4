// SPDX-License-Identifier: Apache-2.0
#include "CommandLine/SystemMetrics.h"

#include "CommandLine/Failure.h"
#include "CommandLine/ObjectKind.h"
#include "CommandLine/TableText.h"
#include "CommandLine/Texts.h"
#include "Controllers/REST/RESTHandler.h"

#include <memory>
#include <optional>
#include <utility>

namespace lodestar
{
namespace
{

using Texts::say;

/// Reduced at once: the document takes ten times the room of its text.
PerformanceMetrics reduced(const MetricsDocument& document)
{
    const MetricsValue samples = samplesOf(document);
    return {timelineOf(samples, MetricsSegment::Processors), timelineOf(samples, MetricsSegment::Memory)};
}

} // namespace

Result<ChosenSystem> systemCalled(const FleetPicture& picture, const std::string& name)
{
    const ObjectKind& kind = *objectKindOf("systems");
    std::optional<ChosenSystem> chosen;
    for (const ConsoleSnapshot& console : picture.consoles) {
        const Table table = tableOf(kind, {console});
        for (const std::size_t row : rowsCalled(kind, table, name)) {
            if (chosen) {
                return failure(say(
                    TEXT("CommandLine",
                         "Several systems are called %1. Name one by its identifier, or its console with --console."),
                    {name}));
            }
            const auto cell = [&](std::string_view title) {
                return std::string(cellOf(table, table.rows[row], title));
            };
            chosen = {console.corvel, cell("name"), cell("id"), calledName(*console.corvel)};
        }
    }
    return chosen ? Result<ChosenSystem>(*chosen)
                  : Result<ChosenSystem>(failure(say(TEXT("CommandLine", "No system is called %1."), {name})));
}

Result<std::vector<Result<PerformanceMetrics>>> fetchMetrics(Session& session, const std::vector<ChosenSystem>& systems)
{
    auto& rest = RESTHandler::sharedInstance();
    using Answers = std::vector<std::optional<Result<PerformanceMetrics>>>;
    const auto answers = std::make_shared<Answers>(systems.size());
    const auto missing = std::make_shared<std::size_t>(systems.size());
    for (std::size_t i = 0; i < systems.size(); ++i) {
        const auto answer = [answers, missing, i](Result<PerformanceMetrics> metrics) {
            (*answers)[i] = std::move(metrics);
            --*missing;
        };
        rest.login(systems[i].corvel, CheckToken::No)
            .then([&rest, system = systems[i]](const SessionKey& key) {
                return rest.fetchPCMDataForManagedSystem(system.identifier, system.corvel, key);
            })
            .then([](const MetricsDocument& document) { return reduced(document); })
            .thenOnMain([answer](const PerformanceMetrics& metrics) { answer(metrics); },
                        [answer](const Error& error) { answer(error); });
    }
    if (session.loop().runUntil([missing] { return *missing == 0; }) != Loop::End::Met) {
        return interrupted();
    }
    std::vector<Result<PerformanceMetrics>> all;
    for (auto& answer : *answers) {
        all.push_back(std::move(*answer));
    }
    return all;
}

} // namespace lodestar
