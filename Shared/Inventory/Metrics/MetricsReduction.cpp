// SPDX-License-Identifier: Apache-2.0
#include "Inventory/Metrics/MetricsReduction.h"

#include <fmt/format.h>

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace lodestar
{
namespace
{

/// Where a sample keeps a segment's figures, in the order in which they are read.
struct Source {
    std::string_view group;
    std::array<std::string_view, 3> keys;
};

constexpr Source processors{"processor", {"totalProcUnits", "availableProcUnits", "utilizedProcUnits"}};
constexpr Source memory{"memory", {"totalMem", "availableMem", "assignedMemToLpars"}};

bool fitsSinglePrecision(double value)
{
    return std::abs(value) <= double{std::numeric_limits<float>::max()};
}

/// The difference in single precision, rounded to seven digits by way of a text, which removes the noise of the
/// subtraction.
double singlePrecisionDifference(double from, double what)
{
    const std::string text = fmt::format("{:.7g}", static_cast<float>(from) - static_cast<float>(what));
    double value = std::numeric_limits<double>::quiet_NaN();
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

double gigabytes(double megabytes)
{
    return double{static_cast<float>(megabytes) / 1000.0F};
}

MetricsFigures figuresOf(const std::array<double, 3>& values, MetricsSegment segment)
{
    if (segment == MetricsSegment::Processors) {
        return {values[0], singlePrecisionDifference(values[0], values[1]), values[2]};
    }
    return {gigabytes(values[0]), gigabytes(values[1]), gigabytes(values[2])};
}

class Reducer
{
public:
    Reducer(const Source& source, MetricsSegment segment) : m_source(source), m_segment(segment) {}

    /// The sample's figures; nothing when the sample cannot be charted, and then `blamed` receives the key and the
    /// reason.
    std::optional<MetricsFigures> figures(const MetricsValue& sample, SkippedSample& blamed) const
    {
        const MetricsValue group = sample.member("serverUtil").member(m_source.group);
        std::array<double, 3> values{};
        std::optional<std::size_t> missing;
        for (std::size_t i = 0; i < values.size(); ++i) {
            const MetricsValue figure = group.member(m_source.keys.at(i));
            const MetricsValue first = figure.isNull() ? figure : figure.first();
            if (first.isNull()) {
                blamed.key = m_source.keys.at(i);
                blamed.reason = SkippedSample::Reason::Null;
                return {};
            }
            const auto number = first.number();
            if (number && fitsSinglePrecision(*number)) {
                values.at(i) = *number;
            } else if (!missing) {
                missing = i;
            }
        }
        const MetricsFigures figures = missing ? MetricsFigures() : figuresOf(values, m_segment);
        if (missing || !fitsSinglePrecision(figures.allocated)) {
            blamed.key = m_source.keys.at(missing.value_or(1));
            blamed.reason = SkippedSample::Reason::NoNumber;
            return {};
        }
        return figures;
    }

private:
    const Source& m_source;
    MetricsSegment m_segment;
};

MetricsReduction::EndSample endSample(const MetricsValue& sample, const MetricsFigures& figures)
{
    const auto stamp = sample.path({"sampleInfo", "timeStamp"}).text();
    return {figures, stamp ? dateFromString(*stamp) : std::nullopt};
}

} // namespace

MetricsPeriod periodOf(const MetricsDocument& document)
{
    const MetricsValue information = document.root().path({"systemUtil", "utilInfo"});
    const auto date = [&information](std::string_view key) {
        const auto stamp = information.member(key).text();
        return stamp ? dateFromString(*stamp) : std::nullopt;
    };
    return {date("startTimeStamp"), date("endTimeStamp")};
}

MetricsValue samplesOf(const MetricsDocument& document)
{
    return document.root().path({"systemUtil", "utilSamples"});
}

bool wasProcessed(const MetricsDocument& document)
{
    const MetricsValue sample = samplesOf(document).first();
    if (!sample.exists()) {
        return false;
    }
    for (const MetricsValue& record : sample.path({"sampleInfo", "errorInfo"}).elements()) {
        if (const MetricsValue message = record.member("errMsg"); message.exists()) {
            return message.text().value_or("").find(notProcessed) == std::string_view::npos;
        }
    }
    return true;
}

MetricsReduction reduceMetrics(const MetricsValue& samples, MetricsSegment segment)
{
    const std::vector<MetricsValue> all = samples.elements();
    MetricsReduction reduction;
    reduction.sampleCount = all.size();
    if (segment != MetricsSegment::Processors && segment != MetricsSegment::Memory) {
        return reduction;
    }
    const Reducer reducer(segment == MetricsSegment::Processors ? processors : memory, segment);
    reduction.xLabels.reserve(all.size());
    reduction.points.reserve(all.size());
    for (std::size_t i = 0; i < all.size(); ++i) {
        SkippedSample skipped{i, {}, {}};
        const auto figures = reducer.figures(all[i], skipped);
        if (!figures) {
            reduction.skipped.push_back(skipped);
            continue;
        }
        reduction.xLabels.push_back(std::to_string(i));
        reduction.points.push_back({*figures, static_cast<int>(i)});
        if (i == 0) {
            reduction.first = endSample(all[i], *figures);
        }
        if (i + 1 == all.size()) {
            reduction.last = endSample(all[i], *figures);
        }
    }
    return reduction;
}

} // namespace lodestar
