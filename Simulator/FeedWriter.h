// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Simulator/Inventory.h"

#include <array>
#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar::simulator
{

/// The values by which consoles with a shared inventory differ.
enum class Blank { Address, ConsoleName, ConsoleSerial, ConsoleID };
inline constexpr std::size_t blankCount = 4;
using BlankValues = std::array<std::string, blankCount>;

/// The object types for which a console has feeds, in the order in which clients request them.
inline constexpr std::array<std::string_view, 6> feedTypes = {
    "ManagementConsole", "ManagedSystem", "VirtualIOServer", "LogicalPartition", "ServiceableEvent", "Group"};

/// A feed with blanks, which are filled in when the feed is sent. So thousands of consoles can share one text.
class FeedTemplate
{
public:
    FeedTemplate() = default;
    /// In `marked` each blank is one control character, which `blankMark` tells.
    explicit FeedTemplate(const std::string& marked);
    static char blankMark(Blank blank) { return static_cast<char>(1 + static_cast<int>(blank)); }

    /// The length of the filled-in text in bytes.
    std::size_t size(const BlankValues& values) const;
    std::string filled(const BlankValues& values) const;

private:
    friend class FeedCursor;
    struct Hole {
        /// The place in `m_text` where the value is inserted.
        std::size_t at;
        std::size_t blank;
    };
    std::string m_text;
    std::vector<Hole> m_holes;
};

/// Reads a filled-in feed from start to end without ever holding it whole. The feed and the values must outlive the
/// cursor.
class FeedCursor
{
public:
    FeedCursor(const FeedTemplate& feed, const BlankValues& values) : m_feed(feed), m_values(values) {}
    /// Writes up to `count` bytes and returns how many; fewer than `count` only at the end.
    std::size_t read(char* out, std::size_t count);

private:
    const FeedTemplate& m_feed;
    const BlankValues& m_values;
    std::size_t m_at = 0;
    std::size_t m_hole = 0;
    std::size_t m_inValue = 0;
};

/// Writes every feed of the inventory, by type, each padded to about `feedBytes`.
std::map<std::string, FeedTemplate, std::less<>> writeFeeds(const Inventory& inventory, std::size_t feedBytes);

} // namespace lodestar::simulator
