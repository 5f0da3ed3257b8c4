// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Store/ObjectContext.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace lodestar
{

/// A named set of consoles. The model only declares it and its relation to `Corvel`; nothing creates or shows a group.
class Group : public ManagedObject
{
public:
    static constexpr std::string_view entityName = "Group";
    static EntityDescription entity()
    {
        return {std::string(entityName), {{"name", AttributeType::String}}, [] { return std::make_shared<Group>(); }};
    }

    Group() : ManagedObject(1) {}

    std::optional<std::string> name() const
    {
        const auto* const name = std::get_if<std::string>(&attribute(0));
        return name != nullptr ? std::optional(*name) : std::nullopt;
    }
    void setName(std::optional<std::string> value)
    {
        setAttribute(0, value ? AttributeValue(*std::move(value)) : AttributeValue());
    }
};

} // namespace lodestar
