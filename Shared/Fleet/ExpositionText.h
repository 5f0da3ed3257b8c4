// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <fmt/format.h>

#include <string>
#include <string_view>

namespace lodestar
{

/// A label with its value: UTF-8 without control characters, escaped, and not longer than what is kept of any text.
std::string metricLabel(std::string_view name, std::string value);

/// Samples of one name, which stand together in the text.
class MetricFamily
{
public:
    /// `help` has neither quotes nor backslashes. `unit` is the name's last word, or empty.
    MetricFamily(std::string& text, std::string_view name, std::string_view unit, std::string_view help);

    /// `labels` are made by `metricLabel`, with commas in between; the samples of a family have different ones.
    template <typename Number>
    void add(std::string_view labels, Number number)
    {
        m_text += labels.empty() ? fmt::format("{} {}\n", m_name, number)
                                 : fmt::format("{}{{{}}} {}\n", m_name, labels, number);
    }

private:
    std::string& m_text;
    const std::string m_name;
};

} // namespace lodestar
