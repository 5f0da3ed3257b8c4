// SPDX-License-Identifier: Apache-2.0
#include "Fleet/FleetSearch.h"

#include "Inventory/FoldedText.h"

#include <algorithm>
#include <new>
#include <unordered_map>
#include <utility>

namespace lodestar
{
namespace
{

std::shared_ptr<const SearchedConsole> searchedOrNothing(const ConsoleSnapshot& console)
{
    static const auto nothing = std::make_shared<const SearchedConsole>();
    try {
        return std::make_shared<const SearchedConsole>(console);
    } catch (const std::bad_alloc&) {
        return nothing;
    }
}

bool isOneLetter(std::string_view text)
{
    const auto continues = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80; };
    return std::ranges::count_if(text, [&](char byte) { return !continues(byte); }) == 1;
}

} // namespace

std::size_t countOf(const FoundObjects& found)
{
    std::size_t count = 0;
    for (const auto& kind : found) {
        count += kind.size();
    }
    return count;
}

FleetSearch::FleetSearch(std::vector<ConsoleSnapshot> consoles, const FleetSearch* before)
    : m_consoles(std::move(consoles))
{
    std::unordered_map<const Corvel*, std::shared_ptr<const SearchedConsole>> known;
    for (std::size_t i = 0; before != nullptr && i < before->m_consoles.size(); ++i) {
        known.emplace(before->m_consoles[i].corvel.get(), before->m_searched[i]);
    }
    m_searched.reserve(m_consoles.size());
    for (const ConsoleSnapshot& console : m_consoles) {
        const auto found = known.find(console.corvel.get());
        const bool isUnchanged = found != known.end() && found->second->holdsFor(console);
        m_searched.push_back(isUnchanged ? found->second : searchedOrNothing(console));
        if (wasRead(console)) {
            m_objects += m_searched.back()->objects();
            ++m_consolesRead;
        }
    }
}

std::string FleetSearch::wanted(std::string_view text)
{
    const std::string folded = foldedText(text);
    const std::size_t begin = folded.find_first_not_of(' ');
    return begin == std::string::npos ? std::string() : folded.substr(begin, folded.find_last_not_of(' ') + 1 - begin);
}

bool FleetSearch::looksFor(std::string_view text) const
{
    const std::string sought = wanted(text);
    return !sought.empty() && !(isLarge() && isOneLetter(sought));
}

FoundObjects FleetSearch::find(std::string_view text) const
{
    FoundObjects found;
    if (!looksFor(text)) {
        return found;
    }
    const std::string sought = wanted(text);
    FoundObjects others;
    for (std::uint32_t console = 0; console < m_searched.size(); ++console) {
        m_searched[console]->find(sought, console, found, others);
    }
    for (std::size_t kind = 0; kind < found.size(); ++kind) {
        if (found[kind].empty()) {
            found[kind] = std::move(others[kind]);
        } else {
            found[kind].insert(found[kind].end(), others[kind].begin(), others[kind].end());
        }
    }
    return found;
}

std::vector<std::uint32_t> FleetSearch::notRead() const
{
    std::vector<std::uint32_t> consoles;
    for (std::uint32_t i = 0; i < m_consoles.size(); ++i) {
        if (!wasRead(m_consoles[i])) {
            consoles.push_back(i);
        }
    }
    return consoles;
}

std::vector<std::uint32_t> FleetSearch::without(std::string_view type) const
{
    std::vector<std::uint32_t> consoles;
    for (std::uint32_t i = 0; i < m_consoles.size(); ++i) {
        const ConsoleSnapshot& console = m_consoles[i];
        if (!wasRead(console)) {
            continue;
        }
        const auto& missing = console.reading->missingFeeds();
        if (console.feeds == nullptr || console.feeds->feed(type).isNA() ||
            std::ranges::find(missing, type) != missing.end()) {
            consoles.push_back(i);
        }
    }
    return consoles;
}

} // namespace lodestar
