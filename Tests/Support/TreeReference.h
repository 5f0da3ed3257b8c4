// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

/// What a document reads as through libxml2's own tree, made with `xmlReadMemory` in recovery mode.
///
/// One line for each element in document order, with its number of descendants, its name, its attributes and the text
/// below it. Entity references read as nothing, in text and in attributes; of attributes with the same name the first
/// one counts; a prefix that the document does not declare is no part of a name. "(none)" stands for no root, "(error)"
/// for a tree that memory ran out on, or that libxml2 gave up as if it had.
std::string readTree(std::string_view bytes);

/// The text of the root's first child element of the name, after "="; "(none)" and "(error)" as above.
std::string readTreeChildText(std::string_view bytes, std::string_view name);

/// Of each child element "entry" of the root, the text that the path of first children below it leads to; "(none)"
/// where it leads nowhere.
std::vector<std::string> readTreeEntries(std::string_view bytes, const std::vector<std::string_view>& path);

/// The same as `readTree` through `XMLElement` and the arena below it.
std::string readArena(std::string_view bytes);

/// The first place where the two differ, for a message; empty when they do not.
std::string firstDifference(std::string_view bytes);

} // namespace lodestar
