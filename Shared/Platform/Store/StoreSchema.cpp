// SPDX-License-Identifier: Apache-2.0
#include "Platform/Store/StoreSchema.h"

namespace lodestar
{

namespace
{

// STRICT makes the integrity check report values of a wrong type, and SQLite then refuses to store such values.
std::string tableStatement(const EntityDescription& entity)
{
    std::string sql =
        "CREATE TABLE " + quotedIdentifier(entity.name) + "(" + quotedIdentifier(rowIdColumn) + " INTEGER PRIMARY KEY";
    for (const AttributeDescription& attribute : entity.attributes) {
        sql += ", " + quotedIdentifier(attribute.name);
        sql += attribute.type == AttributeType::Number ? " INTEGER" : " TEXT";
    }
    return sql + ") STRICT";
}

std::string foreignKey(const std::string& column, const std::string& entity)
{
    return quotedIdentifier(column) + " INTEGER NOT NULL REFERENCES " + quotedIdentifier(entity) + " ON DELETE CASCADE";
}

} // namespace

std::string quotedIdentifier(std::string_view name)
{
    std::string quoted = "\"";
    for (const char c : name) {
        quoted.append(c == '"' ? 2 : 1, c);
    }
    return quoted + '"';
}

std::vector<std::string> schemaStatements(const ManagedObjectModel& model)
{
    std::vector<std::string> statements;
    for (const EntityDescription& entity : model.entities) {
        statements.push_back(tableStatement(entity));
    }
    // A relation is a table of pairs. Each column is named after the side from which its objects are reached, so that
    // an entity can have a relation to itself.
    for (const RelationshipDescription& relation : model.relationships) {
        const std::string table = quotedIdentifier(relation.entity + "_" + relation.name);
        statements.push_back("CREATE TABLE " + table + "(" + foreignKey(relation.inverseName, relation.entity) + ", " +
                             foreignKey(relation.name, relation.inverseEntity) + ", PRIMARY KEY(" +
                             quotedIdentifier(relation.inverseName) + ", " + quotedIdentifier(relation.name) +
                             ")) STRICT, WITHOUT ROWID");
        statements.push_back("CREATE INDEX " + quotedIdentifier(relation.inverseEntity + "_" + relation.inverseName) +
                             " ON " + table + "(" + quotedIdentifier(relation.name) + ")");
    }
    return statements;
}

std::string selectStatement(const EntityDescription& entity)
{
    std::string sql = "SELECT " + quotedIdentifier(rowIdColumn);
    for (const AttributeDescription& attribute : entity.attributes) {
        sql += ", " + quotedIdentifier(attribute.name);
    }
    return sql + " FROM " + quotedIdentifier(entity.name) + " ORDER BY " + quotedIdentifier(rowIdColumn);
}

std::string insertStatement(const EntityDescription& entity)
{
    std::string columns = quotedIdentifier(rowIdColumn);
    std::string values = "NULL";
    for (const AttributeDescription& attribute : entity.attributes) {
        columns += ", " + quotedIdentifier(attribute.name);
        values += ", ?";
    }
    return "INSERT INTO " + quotedIdentifier(entity.name) + "(" + columns + ") VALUES(" + values + ")";
}

std::string updateStatement(const EntityDescription& entity, std::uint64_t mask)
{
    std::string sql = "UPDATE " + quotedIdentifier(entity.name) + " SET ";
    bool first = true;
    for (std::size_t i = 0; i < entity.attributes.size(); ++i) {
        if ((mask >> i & 1U) != 0) {
            sql += (first ? "" : ", ") + quotedIdentifier(entity.attributes[i].name) + " = ?";
            first = false;
        }
    }
    return sql + " WHERE " + quotedIdentifier(rowIdColumn) + " = ?";
}

std::string deleteStatement(const EntityDescription& entity)
{
    return "DELETE FROM " + quotedIdentifier(entity.name) + " WHERE " + quotedIdentifier(rowIdColumn) + " = ?";
}

} // namespace lodestar
