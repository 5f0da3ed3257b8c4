// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Store/ObjectContext.h"

#include <optional>
#include <string>
#include <string_view>

namespace lodestar
{

/// A named set of consoles. The model only declares it and its relation to `Corvel`; nothing creates or shows a group.
class Group : public ManagedObject
{
public:
    static constexpr std::string_view entityName = "Group";
    static EntityDescription entity();

    Group();

    std::optional<std::string> name() const;
    void setName(std::optional<std::string> value);
};

} // namespace lodestar
