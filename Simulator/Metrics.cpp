// SPDX-License-Identifier: Apache-2.0
#include "Simulator/Metrics.h"

#include "Simulator/XmlWriter.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <ctime>
#include <numbers>
#include <random>

namespace lodestar::simulator
{

namespace
{

constexpr std::chrono::seconds interval{180};

/// The part of a system's resources that is free, during each of the period's four steps.
constexpr std::array<double, 4> freeProcessors = {0.3125, 0.21875, 0.1875, 0.25};
constexpr std::array<double, 4> freeMemory = {0.25, 0.15625, 0.09375, 0.0390625};
/// The part of the memory that the system itself uses.
constexpr double ownMemory = 1904.0 / 262144;
constexpr double lastLoad = 0.40625;

std::size_t stepAt(double part)
{
    constexpr std::array<double, 3> steps = {0.26, 0.62, 0.82};
    return static_cast<std::size_t>(std::ranges::upper_bound(steps, part) - steps.begin());
}

std::string decimal(double value, int decimals = 2)
{
    std::array<char, 64> text{};
    const auto [end, error] =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, decimals);
    std::string out(text.data(), end);
    if (out.find('.') != std::string::npos) {
        out.erase(out.find_last_not_of('0') + 1);
    }
    if (out.back() == '.') {
        out.pop_back();
    }
    return out;
}

std::string stamp(std::chrono::sys_seconds moment)
{
    const std::time_t seconds = std::chrono::system_clock::to_time_t(moment);
    std::tm parts{};
    gmtime_r(&seconds, &parts);
    std::array<char, 64> text{};
    std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%S.+0000", &parts);
    return text.data();
}

std::string figure(std::string_view name, const std::string& value)
{
    return jsonText(name) + ":[" + value + "]";
}

class Document
{
public:
    Document(const ManagedSystem& system, const MetricsShape& shape)
        : m_system(system), m_shape(shape), m_processors(std::atof(system.processorUnits.c_str())), m_random(shape.seed)
    {
    }

    std::string write()
    {
        m_out = R"({"systemUtil":{"utilInfo":{"name":)" + jsonText(m_system.name) + R"(,"id":)" +
                jsonText(m_system.id) + R"(,"intervalSeconds":)" + std::to_string(interval.count()) +
                R"(,"startTimeStamp":)" + jsonText(stamp(momentAt(0))) + R"(,"endTimeStamp":)" +
                jsonText(stamp(publishedAt)) + "},\n\"utilSamples\":[";
        for (int i = 0; i < m_shape.samples; ++i) {
            m_out += i == 0 ? "\n" : ",\n";
            writeSample(i);
        }
        return m_out + "\n]}}\n";
    }

private:
    std::chrono::sys_seconds momentAt(int i) const
    {
        return publishedAt - interval * std::max(0, m_shape.samples - 1 - i);
    }
    double partAt(int i) const { return m_shape.samples > 1 ? double(i) / (m_shape.samples - 1) : 1.0; }
    double noise() { return std::uniform_real_distribution<double>(-1, 1)(m_random); }

    /// The part of the processors in use: high by day, low by night, never constant, and a round number at the end.
    double loadAt(int i)
    {
        const auto sinceMidnight = momentAt(i) - std::chrono::floor<std::chrono::days>(momentAt(i));
        const double hour = std::chrono::duration<double, std::ratio<3600>>(sinceMidnight).count();
        m_wander = 0.85 * m_wander + 0.02 * noise();
        const double daily = 0.38 - 0.16 * std::cos((hour - 2) / 12 * std::numbers::pi);
        const double end = std::clamp((partAt(i) - 0.9) * 10, 0.0, 1.0);
        return i + 1 == m_shape.samples ? lastLoad : std::max(0.02, (1 - end) * daily + end * lastLoad + m_wander);
    }

    std::string valueOr(const std::string& value, bool isNull) const
    {
        return isNull || m_shape.unprocessed ? "null" : value;
    }

    void writeSample(int i)
    {
        const std::size_t step = stepAt(partAt(i));
        const bool inside = m_shape.nulls && i > 0 && i + 1 < m_shape.samples;
        const double memory = m_system.memoryMB;
        const double available = std::round(memory * freeMemory.at(step));
        m_out += R"({"sampleInfo":{"timeStamp":)" + jsonText(stamp(momentAt(i))) + R"(,"errorInfo":[{"errMsg":)" +
                 jsonText(m_shape.unprocessed ? "Processing did not happen for this sample." : "") + "}]}";
        m_out += R"(,"serverUtil":{"processor":{)" + figure("totalProcUnits", valueOr(decimal(m_processors), false)) +
                 "," +
                 figure("availableProcUnits",
                        valueOr(decimal(m_processors * freeProcessors.at(step)), inside && i % 17 == 3)) +
                 "," + figure("utilizedProcUnits", valueOr(decimal(m_processors * loadAt(i)), inside && i % 23 == 5)) +
                 R"(},"memory":{)" + figure("totalMem", valueOr(decimal(memory), inside && i % 31 == 7)) + "," +
                 figure("availableMem", valueOr(decimal(available), inside && i % 37 == 9)) + "," +
                 figure("assignedMemToLpars",
                        valueOr(decimal(memory - available - std::round(memory * ownMemory)), inside && i % 41 == 11)) +
                 "}}";
        if (m_shape.partitions > 0) {
            writePartitions();
        }
        m_out += '}';
    }

    void writePartitions()
    {
        m_out += R"(,"partitionUtil":[)";
        for (int i = 0; i < m_shape.partitions; ++i) {
            const double share = m_processors / m_shape.partitions;
            m_out += i == 0 ? "{" : ",{";
            m_out += R"("number":)" + std::to_string(i + 1) + R"(,"name":)" +
                     jsonText(m_system.name + "-partition-" + std::to_string(i + 1)) + R"(,"processor":{)" +
                     figure("entitledProcUnits", decimal(share)) + "," +
                     figure("utilizedProcUnits", decimal(share * (0.5 + 0.4 * noise()), 6)) + "," +
                     figure("idleProcUnits", decimal(share * (0.2 + 0.1 * noise()), 6)) + R"(},"memory":{)" +
                     figure("assignedMem", decimal(double(m_system.memoryMB) / m_shape.partitions)) +
                     R"(},"traffic":[)";
            for (int adapter = 0; adapter < 3; ++adapter) {
                m_out += adapter == 0 ? "{" : ",{";
                m_out += R"("location":"U4210.M16.06A17A8-V)" + std::to_string(i + 1) + "-C" +
                         std::to_string(adapter + 2) + R"(",)" +
                         figure("receivedBytes", decimal(1e6 * (2 + noise()), 3)) + "," +
                         figure("sentBytes", decimal(1e6 * (2 + noise()), 3)) + "}";
            }
            m_out += "]}";
        }
        m_out += ']';
    }

    const ManagedSystem& m_system;
    const MetricsShape& m_shape;
    double m_processors;
    std::mt19937_64 m_random;
    double m_wander = 0;
    std::string m_out;
};

} // namespace

std::string jsonText(std::string_view text)
{
    std::string out = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') {
            out += '\\';
        }
        out += c;
    }
    return out + '"';
}

std::string writeMetricsDocument(const ManagedSystem& system, const MetricsShape& shape)
{
    return Document(system, shape).write();
}

std::string writeMetricsFeed(const ManagedSystem& system, const std::string& documentLink)
{
    XmlWriter xml;
    xml.raw(R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>)");
    xml.open("feed", {{"xmlns", "http://www.w3.org/2005/Atom"}});
    xml.text("id", system.id);
    xml.text("updated", published);
    xml.open("entry");
    xml.text("title", system.name);
    xml.text("published", published);
    xml.empty("link", {{"type", "application/json"}, {"href", documentLink}});
    xml.close();
    xml.close();
    return xml.take();
}

} // namespace lodestar::simulator
