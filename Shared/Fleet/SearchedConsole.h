// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Finding.h"
#include "Inventory/Record.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

class Partition;

/// The kinds of objects that are searched, as types of their feeds, in the order of a console's overview.
inline constexpr std::array<std::string_view, 6> searchedKinds = {
    ObjectType::ManagedSystem, ObjectType::VirtualIOServer,  ObjectType::LogicalPartition,
    ObjectType::Group,         ObjectType::ServiceableEvent, ObjectType::ManagementConsole};
inline constexpr std::size_t consoleKind = searchedKinds.size() - 1;

/// One object that a search found.
struct FoundObject {
    std::uint32_t console = 0; ///< index into the search's consoles
    std::uint32_t object = 0;  ///< of the console
    friend bool operator==(const FoundObject&, const FoundObject&) = default;
};
/// What a search found, by kind.
using FoundObjects = std::array<std::vector<FoundObject>, searchedKinds.size()>;

/// "4210-M16"; what the console leaves out is left out.
std::string typeAndModelOf(const MachineIdentity& identity);

/// The texts of one console and of its objects, folded, and which object has which text. Texts that several objects
/// have are kept once. A value that nothing changes; any thread.
///
/// A console that was not read is searched by its name and address alone.
class SearchedConsole
{
public:
    SearchedConsole() = default;
    explicit SearchedConsole(const ConsoleSnapshot& console);
    /// Whether the texts would be the same for this console as it is now.
    bool holdsFor(const ConsoleSnapshot& console) const;

    std::size_t objects() const { return m_places.size(); }
    std::size_t kindOf(std::uint32_t object) const;
    /// The object in its feed, as its detail screen shows it. For the console itself what it reports about itself, if
    /// that was read.
    XMLElement elementOf(std::uint32_t object) const;
    bool isInError(std::uint32_t object) const { return (m_errors[object / 64] >> (object % 64) & 1U) != 0; }
    /// The name of the partition's system; empty when the console's feeds do not tell it.
    std::string systemOf(const Partition& partition) const;
    /// How many of the group's members are in error, as far as the console's feeds tell.
    std::size_t membersInError(const XMLElement& group) const;

    /// Adds, to each kind's, the objects that have the wanted text, which is folded and not empty. `console` is what
    /// they are added with.
    void find(std::string_view wanted, std::uint32_t console, FoundObjects& inError, FoundObjects& others) const;

    /// All texts that are searched, and all bytes that this takes.
    std::string_view texts() const { return m_texts; }
    std::size_t memory() const;
    /// Bytes of the names among the texts.
    std::size_t nameBytes() const { return m_nameBytes; }

private:
    friend class SearchedConsoleMaker;

    std::string m_name;
    std::string m_address;
    std::string m_numericAddress;                  ///< where the address led
    std::shared_ptr<const FeedDictionary> m_feeds; ///< null when the console was not read
    bool m_hasTrouble = false;                     ///< it is offline, or a system is in error
    /// First the texts that each object has for itself, one stretch an object; then those that several have. Each ends
    /// with a NUL; a line end stands between an object's own texts. Neither can be searched for.
    std::string m_texts;
    std::vector<std::uint32_t> m_ends;     ///< of each text, after its NUL
    std::vector<std::uint32_t> m_firstUse; ///< of each shared text and of one more, in `m_uses`
    std::vector<std::uint32_t> m_uses;     ///< objects
    std::vector<std::uint32_t> m_places;   ///< each object's in its feed's document; 0 for none
    std::vector<std::uint64_t> m_errors;   ///< a bit for each object
    std::array<std::uint32_t, searchedKinds.size()> m_kindEnds{};
    std::set<std::string, std::less<>> m_identitiesInError; ///< as groups count them
    std::map<std::string, std::uint32_t> m_systems;         ///< objects by identity
    std::size_t m_nameBytes = 0;
};

} // namespace lodestar
