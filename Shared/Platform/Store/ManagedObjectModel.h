// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <variant>
#include <vector>

namespace lodestar
{

/// A stored attribute's value: none, a number or a text.
using AttributeValue = std::variant<std::monostate, std::int64_t, std::string>;

enum class AttributeType { Number, String };

struct AttributeDescription {
    std::string name;
    AttributeType type;
};

class ManagedObject;

/// An entity's attributes in storage order, and how to make an empty object of it.
struct EntityDescription {
    std::string name;
    std::vector<AttributeDescription> attributes;
    std::function<std::shared_ptr<ManagedObject>()> make;
};

/// A to-many relation between two entities. Each side has its own name ("groups" of Corvel, "corvels" of Group).
struct RelationshipDescription {
    std::string entity, name, inverseEntity, inverseName;
};

/// The compiled model: what a store must hold. Two models with the same `version` are the same.
struct ManagedObjectModel {
    std::vector<EntityDescription> entities;
    std::vector<RelationshipDescription> relationships;
    int version = 1;
};

} // namespace lodestar
