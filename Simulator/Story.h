// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Simulator/Inventory.h"

#include <chrono>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar::simulator
{

/// One change that a story makes at one moment.
struct Deed {
    int line = 0;               ///< of the file
    std::chrono::seconds at{};  ///< since the story began
    std::optional<int> console; ///< none for every console
    std::string kind;           ///< "system", "server", "partition", "event", "feed", "certificate", "console", "fault"
    std::string object;         ///< a name, a position "3", positions "0-11" or "all"; of a feed its type
    std::vector<std::string> acts;
    std::map<std::string, std::string, std::less<>> values;

    bool is(std::string_view act) const;
    std::optional<std::string> value(std::string_view key) const;
    /// Whether the deed changes what the feeds say, so that `change` applies.
    bool changesInventory() const;
};

/// What happens to the consoles over time: a text with one deed a line. `storyHelp` describes the lines.
class Story
{
public:
    /// Throws `std::invalid_argument` with the name, the line's number and the reason.
    static Story parse(std::string_view text, std::string name);
    /// Reads a file. Throws as `parse` does.
    static Story read(const std::string& path);

    /// In the order of their times; those of one time in the order of their lines.
    const std::vector<Deed>& deeds() const { return m_deeds; }
    /// What the story calls the console, empty for nothing.
    std::string nameOf(int console) const;
    /// Goes through the whole story on copies of the inventories. Throws as `parse` does when a deed names a console or
    /// an object that is not there.
    void check(const std::vector<const Inventory*>& consoles) const;

private:
    [[noreturn]] void fail(int line, const std::string& reason) const;
    void append(int line, std::string_view text);

    std::string m_name;
    std::vector<Deed> m_deeds;
};

/// Does a deed for which `changesInventory` holds. `now` is its moment in seconds since 1970, for the events' time
/// stamps. Throws `std::invalid_argument` when there is no such object.
void change(Inventory& inventory, const Deed& deed, std::int64_t now);

/// How the lines of a story are written.
std::string storyHelp();

} // namespace lodestar::simulator
