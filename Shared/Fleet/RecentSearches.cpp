// SPDX-License-Identifier: Apache-2.0
#include "Fleet/RecentSearches.h"

#include "Fleet/FleetSearch.h"
#include "Fleet/History.h"
#include "Inventory/FoldedText.h"

#include <algorithm>
#include <string_view>

namespace lodestar
{
namespace
{

constexpr auto setting = "RecentSearches";
/// A longer text is not worth keeping.
constexpr std::size_t longest = 200;

void keep(const std::vector<std::string>& texts)
{
    std::string lines;
    for (const std::string& text : texts) {
        lines += text + '\n';
    }
    History::shared().setSetting(setting, lines.empty() ? std::nullopt : std::optional(lines));
}

/// Of a console that this run has not read, the search knows no more than its name and its address.
bool isRemembered(const ConsoleMemory& memory, std::string_view wanted)
{
    std::string folded;
    return std::ranges::any_of(memory.objects, [&](const auto& known) {
        const auto& [key, object] = known;
        folded = key.type == ObjectType::ServiceableEvent ? "#" : "";
        for (const std::string* const text : {&object.name, &object.state, &object.text}) {
            appendFolded(folded, *text);
            folded += '\n';
        }
        return folded.find(wanted) != std::string::npos;
    });
}

} // namespace

std::vector<std::string> RecentSearches::list()
{
    std::vector<std::string> texts;
    const std::string lines = History::shared().setting(setting).value_or("");
    for (std::size_t begin = 0, end = 0; (end = lines.find('\n', begin)) != std::string::npos; begin = end + 1) {
        texts.push_back(lines.substr(begin, end - begin));
    }
    return texts;
}

void RecentSearches::add(const std::string& text)
{
    const std::string wanted = FleetSearch::wanted(text);
    if (wanted.empty() || text.size() > longest || text.find('\n') != std::string::npos) {
        return;
    }
    std::vector<std::string> texts = list();
    std::erase_if(texts, [&](const std::string& known) { return FleetSearch::wanted(known) == wanted; });
    texts.insert(texts.begin(), text);
    texts.resize(std::min(texts.size(), most));
    keep(texts);
}

void RecentSearches::clear()
{
    keep({});
}

void RecentSearches::forgetThoseOf(const ConsoleSnapshot& console)
{
    std::vector<std::string> texts = list();
    if (texts.empty()) {
        return;
    }
    const FleetSearch search({console}, nullptr);
    const auto forgotten = std::erase_if(texts, [&](const std::string& text) {
        return countOf(search.find(text)) > 0 ||
               (console.memory != nullptr && isRemembered(*console.memory, FleetSearch::wanted(text)));
    });
    if (forgotten > 0) {
        keep(texts);
    }
}

} // namespace lodestar
