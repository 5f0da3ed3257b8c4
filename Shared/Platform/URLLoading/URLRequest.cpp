// SPDX-License-Identifier: Apache-2.0
#include "Platform/URLLoading/URLRequest.h"

#include <algorithm>

namespace lodestar
{

namespace
{

bool sameName(std::string_view a, std::string_view b)
{
    return std::ranges::equal(a, b, [](char x, char y) { return lowered(x) == lowered(y); });
}

template <typename Fields>
auto findField(Fields& fields, std::string_view name)
{
    return std::ranges::find_if(fields,
                                [name](const HTTPHeaders::Field& field) { return sameName(field.first, name); });
}

} // namespace

void HTTPHeaders::setValue(std::string_view name, std::string_view value)
{
    const auto field = findField(m_fields, name);
    if (field != m_fields.end()) {
        field->second = value;
    } else {
        m_fields.emplace_back(name, value);
    }
}

void HTTPHeaders::addValue(std::string_view name, std::string_view value)
{
    const auto field = findField(m_fields, name);
    if (field != m_fields.end()) {
        field->second.append(", ").append(value);
    } else {
        m_fields.emplace_back(name, value);
    }
}

void HTTPHeaders::removeValue(std::string_view name)
{
    std::erase_if(m_fields, [name](const Field& field) { return sameName(field.first, name); });
}

std::optional<std::string> HTTPHeaders::value(std::string_view name) const
{
    const auto field = findField(m_fields, name);
    return field != m_fields.end() ? std::optional(field->second) : std::nullopt;
}

} // namespace lodestar
