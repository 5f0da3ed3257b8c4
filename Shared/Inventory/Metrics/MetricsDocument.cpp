// SPDX-License-Identifier: Apache-2.0
#include "Inventory/Metrics/MetricsDocument.h"

#include <simdjson.h>

#include <algorithm>
#include <bit>
#include <charconv>
#include <type_traits>

namespace lodestar
{

namespace
{

using simdjson::dom::element;

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
/// Integers with up to this many digits fit into signed 64 bits.
constexpr std::ptrdiff_t safeDigits = 18;

template <typename Handle>
element elementOf(const Handle& handle)
{
    static_assert(sizeof(element) == sizeof(Handle) && std::is_trivially_copyable_v<element>);
    return std::bit_cast<element>(handle);
}

Error parseError(simdjson::error_code code)
{
    return {std::string(metricsErrorDomain), static_cast<int>(code), simdjson::error_message(code), {}, nullptr};
}

bool isPartOfNumber(char c)
{
    return (c >= '0' && c <= '9') || c == '-' || c == '+' || c == '.' || c == 'e' || c == 'E';
}

/// Appends a number in a form that the parser accepts: an integer that may exceed 64 bits gets a fraction, and a number
/// beyond double precision becomes a text, which no reader takes for a number. Any other token stays as it is.
void appendNumber(std::string& out, std::string_view token)
{
    double value = 0;
    const auto [end, error] = std::from_chars(token.data(), token.data() + token.size(), value);
    const bool isInteger = std::ranges::all_of(token, [](char c) { return c == '-' || (c >= '0' && c <= '9'); });
    if (error == std::errc::result_out_of_range && token.find("e-") == token.npos && token.find("E-") == token.npos) {
        out.append("\"").append(token).append("\"");
    } else if (isInteger && error == std::errc() && end == token.data() + token.size() &&
               std::ranges::count_if(token, [](char c) { return c != '-'; }) > safeDigits) {
        out.append(token).append(".0");
    } else {
        out.append(token);
    }
}

/// The parser rejects a whole document for one number that is too large; such a number must not cost the chart.
std::string withTamedNumbers(std::string_view text)
{
    std::string out;
    out.reserve(text.size() + simdjson::SIMDJSON_PADDING + 1024);
    bool inText = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (inText && c == '\\' && i + 1 < text.size()) {
            out += c;
            out += text[++i];
        } else if (!inText && (c == '-' || (c >= '0' && c <= '9'))) {
            const std::size_t start = i;
            while (i + 1 < text.size() && isPartOfNumber(text[i + 1])) {
                ++i;
            }
            appendNumber(out, text.substr(start, i + 1 - start));
        } else {
            inText = inText != (c == '"');
            out += c;
        }
    }
    return out;
}

simdjson::error_code parseInto(simdjson::dom::document& document, const std::string& text)
{
    simdjson::dom::parser parser;
    if (text.starts_with(byteOrderMark)) {
        return parser
            .parse_into_document(document, text.data() + byteOrderMark.size(), text.size() - byteOrderMark.size())
            .error();
    }
    return parser.parse_into_document(document, text).error();
}

} // namespace

struct MetricsDocument::Tree {
    simdjson::dom::document document;
};

Result<MetricsDocument> MetricsDocument::parse(const std::string& text)
{
    if (text.size() > largest) {
        return parseError(simdjson::CAPACITY);
    }
    auto tree = std::make_shared<Tree>();
    simdjson::error_code code = parseInto(tree->document, text);
    if (code == simdjson::NUMBER_ERROR) {
        code = parseInto(tree->document, withTamedNumbers(text));
    }
    if (code != simdjson::SUCCESS) {
        return parseError(code);
    }
    if (!tree->document.root().is_object() && !tree->document.root().is_array()) {
        return parseError(simdjson::INCORRECT_TYPE);
    }
    MetricsDocument document;
    document.m_tree = std::move(tree);
    return document;
}

MetricsValue MetricsDocument::root() const&
{
    if (!m_tree) {
        return {};
    }
    return MetricsValue(std::bit_cast<MetricsValue::Handle>(m_tree->document.root()));
}

bool MetricsValue::isNull() const
{
    return exists() && elementOf(m_handle).is_null();
}

MetricsValue MetricsValue::member(std::string_view name) const
{
    element found;
    if (!exists() || elementOf(m_handle).at_key(name).get(found) != simdjson::SUCCESS) {
        return {};
    }
    return MetricsValue(std::bit_cast<Handle>(found));
}

MetricsValue MetricsValue::path(std::initializer_list<std::string_view> names) const
{
    MetricsValue value = *this;
    for (const std::string_view name : names) {
        value = value.member(name);
    }
    return value;
}

MetricsValue MetricsValue::first() const
{
    element found;
    if (!exists() || elementOf(m_handle).at(0).get(found) != simdjson::SUCCESS) {
        return {};
    }
    return MetricsValue(std::bit_cast<Handle>(found));
}

std::vector<MetricsValue> MetricsValue::elements() const
{
    std::vector<MetricsValue> found;
    simdjson::dom::array array;
    if (exists() && elementOf(m_handle).get(array) == simdjson::SUCCESS) {
        found.reserve(array.size());
        for (const element each : array) {
            found.push_back(MetricsValue(std::bit_cast<Handle>(each)));
        }
    }
    return found;
}

std::optional<std::string_view> MetricsValue::text() const
{
    std::string_view found;
    if (!exists() || elementOf(m_handle).get(found) != simdjson::SUCCESS) {
        return {};
    }
    return found;
}

std::optional<double> MetricsValue::number() const
{
    double found = 0;
    if (!exists() || elementOf(m_handle).get(found) != simdjson::SUCCESS) {
        return {};
    }
    return found;
}

} // namespace lodestar
