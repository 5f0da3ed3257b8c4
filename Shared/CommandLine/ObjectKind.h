// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Csv.h"
#include "Fleet/Finding.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

/// A kind of object as commands name it.
struct ObjectKind {
    std::string_view name;                       ///< "io-servers"
    std::string_view type;                       ///< an `ObjectType`
    std::vector<std::string_view> usualTitles;   ///< columns that a person wants at first
    std::vector<std::string_view> spareTitles;   ///< of those, what a narrow terminal does without, in this order
    std::vector<std::string_view> callingTitles; ///< those by which an object is called
};

/// Null for no kind. Singular words are known, too.
const ObjectKind* objectKindOf(std::string_view word);
std::string noSuchKind(const std::string& word);
/// Everything of the kind, whole.
Table tableOf(const ObjectKind& kind, const std::vector<ConsoleSnapshot>& consoles);
/// The rows of the objects that are called so: by identifier if any is, else by name or number.
std::vector<std::size_t> rowsCalled(const ObjectKind& kind, const Table& table, std::string_view name);

} // namespace lodestar
