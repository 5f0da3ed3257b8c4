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

/// What differs between consoles that share an inventory.
enum class Blank { Address, ConsoleName, ConsoleSerial, ConsoleID };
inline constexpr std::size_t blankCount = 4;
using BlankValues = std::array<std::string, blankCount>;

/// The object types that a console has feeds of, in the order in which clients ask for them.
inline constexpr std::array<std::string_view, 6> feedTypes = {
    "ManagementConsole", "ManagedSystem", "VirtualIOServer", "LogicalPartition", "ServiceableEvent", "Group"};

/// A feed with blanks that are filled in when it is sent, so that thousands of consoles can share one text.
class FeedTemplate
{
public:
    FeedTemplate() = default;
    /// `marked` holds each blank as one control character, `blankMark(blank)`.
    explicit FeedTemplate(const std::string& marked);
    static char blankMark(Blank blank) { return static_cast<char>(1 + static_cast<int>(blank)); }

    /// Bytes of the filled-in text.
    std::size_t size(const BlankValues& values) const;
    std::string filled(const BlankValues& values) const;

private:
    friend class FeedCursor;
    struct Hole {
        /// Where the value goes in `m_text`.
        std::size_t at;
        std::size_t blank;
    };
    std::string m_text;
    std::vector<Hole> m_holes;
};

/// Reads a filled-in feed from front to back without ever holding it whole. Both must outlive it.
class FeedCursor
{
public:
    FeedCursor(const FeedTemplate& feed, const BlankValues& values) : m_feed(feed), m_values(values) {}
    /// Up to `count` bytes; fewer only at the end.
    std::size_t read(char* out, std::size_t count);

private:
    const FeedTemplate& m_feed;
    const BlankValues& m_values;
    std::size_t m_at = 0;
    std::size_t m_hole = 0;
    std::size_t m_inValue = 0;
};

/// Every feed of an inventory by type, each padded to about `feedBytes`.
std::map<std::string, FeedTemplate, std::less<>> writeFeeds(const Inventory& inventory, std::size_t feedBytes);

} // namespace lodestar::simulator
