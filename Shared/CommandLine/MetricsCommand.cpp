// SPDX-License-Identifier: Apache-2.0
#include "CommandLine/Commands.h"
#include "CommandLine/Failure.h"
#include "CommandLine/Json.h"
#include "CommandLine/SystemMetrics.h"
#include "CommandLine/Texts.h"
#include "CommandLine/Words.h"
#include "Fleet/MetricsTable.h"

#include <fmt/format.h>

#include <array>
#include <nlohmann/json.hpp>

namespace lodestar
{
namespace
{

using Texts::say;

std::string figure(double value)
{
    return fmt::format("{:.2f}", value);
}

std::string figureAt(const MetricsSummary::Value& value)
{
    return value.time
               ? say(TEXT("lodestar::PerformanceText", "%1 at %2"), {figure(value.value), Words::clock(*value.time)})
               : figure(value.value);
}

std::string summaryText(const PerformanceMetrics& metrics, const Terminal& terminal)
{
    Table table{{"figure", "lowest", "mean", "highest", "last"}, {}};
    for (const MetricsSegment segment : {MetricsSegment::Processors, MetricsSegment::Memory}) {
        constexpr std::array processors = {TEXT("CommandLine", "total processors"),
                                           TEXT("CommandLine", "allocated processors"),
                                           TEXT("CommandLine", "used processors")};
        constexpr std::array memory = {TEXT("CommandLine", "total memory, GB"),
                                       TEXT("CommandLine", "allocated memory, GB"),
                                       TEXT("CommandLine", "used memory, GB")};
        const auto& names = segment == MetricsSegment::Memory ? memory : processors;
        for (std::size_t i = 0; i < names.size(); ++i) {
            if (const auto summary = summaryOf(metrics.of(segment), metricsSeries.at(i))) {
                table.rows.push_back({say(names.at(i)), figureAt(summary->lowest), figure(summary->mean),
                                      figureAt(summary->highest), figureAt(summary->last)});
            }
        }
    }
    std::string text =
        table.rows.empty() ? say(TEXT("CommandLine", "No sample had values.")) + "\n" : tableText(table, terminal);
    if (const std::size_t without = metrics.processors.withoutValues; without > 0) {
        text +=
            "\n" +
            sentenceText(
                Texts::count(TEXTS("lodestar::PerformanceText", "%Ln samples had no values and are left out"), without),
                terminal);
    }
    return text;
}

Json::Value samplesJson(const MetricsTimeline& timeline)
{
    Json::Value samples = Json::Value::array();
    for (const MetricsMoment& moment : timeline.moments) {
        samples.push_back({{"time", Json::time(moment.time)},
                           {"total", moment.figures.total},
                           {"allocated", moment.figures.allocated},
                           {"used", moment.figures.used}});
    }
    return {{"samples", samples}, {"without_values", timeline.withoutValues}};
}

} // namespace

Result<Verdict> showMetrics(CommandContext& context)
{
    const Result<FleetPicture> picture = readFleet(context);
    if (!picture) {
        return picture.error();
    }
    const Result<ChosenSystem> system = systemCalled(picture.value(), context.arguments.operands[0]);
    if (!system) {
        complainOfGaps(picture.value());
        return system.error();
    }
    const auto answers = fetchMetrics(context.session, {system.value()});
    if (!answers) {
        return answers.error();
    }
    const Result<PerformanceMetrics>& answer = answers.value().front();
    if (!answer) {
        return failure(say(TEXT("CommandLine", "The metrics of %1 cannot be had: %2."),
                           {system.value().name, Words::reason(answer.error())}));
    }
    const PerformanceMetrics& metrics = answer.value();
    if (context.arguments.has("--json")) {
        Json::Value said = Json::answer("metrics", picture.value());
        said["system"] = {
            {"name", system.value().name}, {"id", system.value().identifier}, {"console", system.value().console}};
        said["processors"] = samplesJson(metrics.processors);
        said["memory_gb"] = samplesJson(metrics.memory);
        context.output.write(Json::document(said));
    } else if (context.arguments.has("--csv")) {
        const MetricsSegment segment =
            context.arguments.has("--memory") ? MetricsSegment::Memory : MetricsSegment::Processors;
        context.output.writeCsv(metricsTable(metrics.of(segment), segment));
    } else {
        context.output.write(summaryText(metrics, context.output.terminal()));
    }
    return Verdict::Good;
}

} // namespace lodestar
