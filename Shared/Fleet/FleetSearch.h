// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/SearchedConsole.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

std::size_t countOf(const FoundObjects& found);

/// Finds objects by the texts that consoles tell of them, in everything that was read. A value that nothing changes;
/// any thread.
class FleetSearch
{
public:
    /// From this many consoles on, one letter would find most of what there is.
    static constexpr std::size_t largeFleet = 5000;

    FleetSearch() = default;
    /// Takes over what the search before made of consoles that have not changed since; null for none. A console for
    /// which there is no memory is listed, but nothing of it is found.
    FleetSearch(std::vector<ConsoleSnapshot> consoles, const FleetSearch* before);

    /// The objects that have the text in one of their own, by kind: first those in error and the open events, then the
    /// others, each in the order of the consoles and of their feeds. Case, diacritics and blanks at the text's ends do
    /// not matter. Nothing for an empty text, nor for one letter in a large fleet.
    FoundObjects find(std::string_view text) const;
    /// Whether `find` would look for the text at all.
    bool looksFor(std::string_view text) const;
    /// The text as it is looked for.
    static std::string wanted(std::string_view text);

    const std::vector<ConsoleSnapshot>& consoles() const { return m_consoles; }
    const ConsoleSnapshot& consoleOf(const FoundObject& found) const { return m_consoles[found.console]; }
    const SearchedConsole& searched(std::size_t console) const { return *m_searched[console]; }
    const SearchedConsole& searchedOf(const FoundObject& found) const { return searched(found.console); }

    /// How many objects of the consoles that were read can be found, and how many consoles these are.
    std::size_t objects() const { return m_objects; }
    std::size_t consolesRead() const { return m_consolesRead; }
    /// Indexes of the consoles that were not read, and of those that answered without the feed of the type.
    std::vector<std::uint32_t> notRead() const;
    std::vector<std::uint32_t> without(std::string_view type) const;
    bool isLarge() const { return m_consoles.size() >= largeFleet; }

private:
    std::vector<ConsoleSnapshot> m_consoles;
    std::vector<std::shared_ptr<const SearchedConsole>> m_searched; ///< of each console
    std::size_t m_objects = 0;
    std::size_t m_consolesRead = 0;
};

} // namespace lodestar
