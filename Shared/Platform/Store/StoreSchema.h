// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Store/ObjectContext.h"

#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

/// Column that holds the row's number in every entity's table; no attribute may bear the name.
inline constexpr std::string_view rowIdColumn = "_id";

/// The name as an SQL identifier.
std::string quotedIdentifier(std::string_view name);

/// The statements that make the model's tables, one a table and index, in order of creation. SQLite keeps each text as
/// it is here, so that a store's schema is compared text by text.
std::vector<std::string> schemaStatements(const ManagedObjectModel& model);

/// Reads every object of the entity in store order: row number, then the attributes.
std::string selectStatement(const EntityDescription& entity);
/// Parameter 1.. are the attributes; the store chooses the row number.
std::string insertStatement(const EntityDescription& entity);
/// Parameters are the attributes whose bits are set in `mask`, in order, then the row number.
std::string updateStatement(const EntityDescription& entity, std::uint64_t mask);
/// Parameter 1 is the row number.
std::string deleteStatement(const EntityDescription& entity);

} // namespace lodestar
