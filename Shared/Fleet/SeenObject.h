// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Memory.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

/// What a feed says of an object. A field that the console leaves out says nothing.
struct SeenObject {
    ObjectKey key;
    std::optional<std::string> name;
    std::optional<std::string> state;
    std::optional<bool> lit;
    std::optional<std::string> text;
};

/// The states that are remembered of a group. A console tells none of its groups; these are words of ours for what
/// `groupsInError` says of the feeds.
inline constexpr std::string_view groupIsGood = "good";
inline constexpr std::string_view groupInError = "error";

/// The objects of the type in the feed, in its order, each identifier once; without those that have none. Consoles
/// themselves are no objects. Any thread.
std::vector<SeenObject> seenObjects(std::string_view type, const Feed& feed);

/// The text, cut to `longestKeptText`.
std::string keptText(std::string text);

} // namespace lodestar
