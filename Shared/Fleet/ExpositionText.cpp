// SPDX-License-Identifier: Apache-2.0
#include "Fleet/ExpositionText.h"

#include "Fleet/SeenObject.h"

#include <utf8proc.h>

namespace lodestar
{
namespace
{

std::string escaped(std::string text)
{
    text = keptText(std::move(text));
    std::string value;
    value.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        utf8proc_int32_t code = 0;
        const auto length = utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(text.data() + at),
                                             static_cast<utf8proc_ssize_t>(text.size() - at), &code);
        const std::string_view letter(text.data() + at, length > 0 ? static_cast<std::size_t>(length) : 1);
        at += letter.size();
        if (letter == "\n") {
            value += "\\n";
        } else if (letter == "\\" || letter == "\"") {
            value.append("\\").append(letter);
        } else if (length <= 0 || utf8proc_category(code) == UTF8PROC_CATEGORY_CC) {
            value += "\xEF\xBF\xBD";
        } else {
            value += letter;
        }
    }
    return value;
}

} // namespace

std::string metricLabel(std::string_view name, std::string value)
{
    return std::string(name) + "=\"" + escaped(std::move(value)) + "\"";
}

MetricFamily::MetricFamily(std::string& text, std::string_view name, std::string_view unit, std::string_view help)
    : m_text(text), m_name("lodestar_" + std::string(name))
{
    m_text += fmt::format("# TYPE {} gauge\n", m_name);
    if (!unit.empty()) {
        m_text += fmt::format("# UNIT {} {}\n", m_name, unit);
    }
    m_text += fmt::format("# HELP {} {}\n", m_name, help);
}

} // namespace lodestar
