// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Store/ManagedObjectModel.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

/// The column that holds the row's number in every entity's table. No attribute may have this name.
inline constexpr std::string_view rowIdColumn = "_id";

/// The name quoted as an SQL identifier.
std::string quotedIdentifier(std::string_view name);

/// The statements that make the model's tables, one statement for each table and index, in order of creation. SQLite
/// keeps each text unchanged, so a store's schema is compared text by text.
std::vector<std::string> schemaStatements(const ManagedObjectModel& model);

/// Reads every object of the entity in store order. The columns are the row number, then the attributes.
std::string selectStatement(const EntityDescription& entity);
/// The parameters are the attributes in order; the store chooses the row number.
std::string insertStatement(const EntityDescription& entity);
/// The parameters are the attributes whose bits are set in `mask`, in order, then the row number.
std::string updateStatement(const EntityDescription& entity, std::uint64_t mask);
/// Parameter 1 is the row number.
std::string deleteStatement(const EntityDescription& entity);

} // namespace lodestar
