// SPDX-License-Identifier: Apache-2.0
#include "Application/Model/Group.h"

#include <utility>

namespace lodestar
{

EntityDescription Group::entity()
{
    return {std::string(entityName), {{"name", AttributeType::String}}, [] { return std::make_shared<Group>(); }};
}

Group::Group() : ManagedObject(1) {}

std::optional<std::string> Group::name() const
{
    const auto* const name = std::get_if<std::string>(&attribute(0));
    return name != nullptr ? std::optional(*name) : std::nullopt;
}

void Group::setName(std::optional<std::string> value)
{
    setAttribute(0, value ? AttributeValue(*std::move(value)) : AttributeValue());
}

} // namespace lodestar
