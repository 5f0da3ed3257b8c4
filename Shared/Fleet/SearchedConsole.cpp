// SPDX-License-Identifier: Apache-2.0
#include "Fleet/SearchedConsole.h"

#include "Inventory/ConsoleInformation.h"
#include "Inventory/FoldedText.h"
#include "Inventory/Identity.h"
#include "Inventory/ManagedSystem.h"
#include "Inventory/Partition.h"
#include "Inventory/ResourceGroup.h"
#include "Inventory/ServiceableEvent.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <unordered_map>
#include <utility>

namespace lodestar
{
namespace
{

constexpr char betweenOwnTexts = '\n';

bool hasTrouble(const ConsoleSnapshot& console)
{
    const bool isOffline = console.reading != nullptr && console.reading->outcome == Reading::Outcome::Offline;
    return isOffline || console.corvel->numMSErrors != 0;
}

std::string numericAddressOf(const ConsoleSnapshot& console)
{
    return wasRead(console) ? console.reading->address : std::string();
}

} // namespace

/// Makes a SearchedConsole in one pass over the feeds.
class SearchedConsoleMaker
{
public:
    explicit SearchedConsoleMaker(SearchedConsole& made) : m_made(made) {}

    void make(const ConsoleSnapshot& console)
    {
        addObjects<ManagedSystem>();
        addObjects<VirtualIOServer>();
        addObjects<LogicalPartition>();
        addObjects<ResourceGroup>();
        addObjects<ServiceableEvent>();
        addConsole(console);
        finish();
    }

private:
    template <typename Kind>
    void addObjects()
    {
        if (m_made.m_feeds != nullptr) {
            for (const XMLElement& entry : m_made.m_feeds->feed(Kind::type).entries()) {
                if (const auto record = recordOfEntry<Kind>(entry)) {
                    m_entry = &entry;
                    add(record);
                    endObject(record.element().place());
                }
            }
        }
        endKind();
    }

    void addConsole(const ConsoleSnapshot& console)
    {
        addName(console.name);
        addOwn(console.address);
        addOwn(m_made.m_numericAddress);
        std::uint32_t place = 0;
        if (m_made.m_feeds != nullptr) {
            const auto information = ConsoleInformation::of(m_made.m_feeds->feed(ConsoleInformation::type));
            addOwn(information.name());
            addMachine(information.identity());
            place = information.element().place();
        }
        m_isInError = m_made.m_hasTrouble;
        endObject(place);
        endKind();
    }

    void add(const ManagedSystem& system)
    {
        addName(system.name());
        addMachine(system.identity());
        addOwn(system.primaryIPAddress());
        addShared(system.referenceCode());
        m_made.m_systems.try_emplace(identityOfEntry(*m_entry, ManagedSystem::type), m_object);
        const std::string state = system.state().value_or("");
        addShared(state);
        m_isInError = ManagedSystem::healthOfState(state) == Health::Error;
        noteState<ManagedSystem>(state);
    }

    template <typename Kind>
    void add(const Kind& partition)
    {
        addName(partition.name());
        addShared(partition.referenceCode());
        const std::string state = partition.state().value_or("");
        addShared(state);
        m_isInError = Partition::healthOfState(state) == Health::Error;
        noteState<Kind>(state);
    }

    void add(const ResourceGroup& group)
    {
        addName(group.name());
        m_isInError = m_made.membersInError(group.element()) > 0;
    }

    void add(const ServiceableEvent& event)
    {
        addName("#" + event.problemNumber().value_or(""));
        addShared(event.shortDescription());
        addShared(event.referenceCode());
        addShared(event.referenceCodeExtension());
        addShared(event.systemReferenceCode());
        addShared(event.approvalState());
        const std::string state = event.problemState().value_or("");
        addShared(state);
        const EventNode failing = event.failingSystem();
        addShared(failing.hostName());
        // Many events may be those of one system.
        addShared(failing.identity().serialNumber());
        addShared(typeAndModelOf(failing.identity()));
        for (const FieldReplaceableUnit& unit : event.units()) {
            addShared(unit.partNumber());
            addOwn(unit.locationCode());
        }
        m_isInError = ServiceableEvent::isOpenState(state);
    }

    void addMachine(const MachineIdentity& identity)
    {
        addOwn(identity.serialNumber());
        addShared(typeAndModelOf(identity));
    }

    void addName(const std::optional<std::string>& name)
    {
        addOwn(name);
        m_made.m_nameBytes += m_made.m_texts.size() - m_begin + 1;
    }

    void addOwn(const std::optional<std::string>& text)
    {
        if (!text || text->empty()) {
            return;
        }
        if (m_made.m_texts.size() > m_begin) {
            m_made.m_texts.push_back(betweenOwnTexts);
        }
        appendFolded(m_made.m_texts, *text);
    }

    void addShared(const std::optional<std::string>& text)
    {
        if (!text || text->empty()) {
            return;
        }
        const auto [known, isNew] = m_shared.try_emplace(*text, static_cast<std::uint32_t>(m_shared.size()));
        if (isNew) {
            appendFolded(m_sharedTexts, *text);
            m_sharedTexts.push_back('\0');
            m_sharedEnds.push_back(m_sharedTexts.size());
        }
        m_uses.emplace_back(known->second, m_object);
    }

    /// Groups count members in error by words of their own.
    template <typename Kind>
    void noteState(std::string_view state)
    {
        if (ResourceGroup::healthOfMember(state) == Health::Error) {
            m_made.m_identitiesInError.insert(identityOfEntry(*m_entry, Kind::type));
        }
    }

    void endObject(std::uint32_t place)
    {
        m_made.m_texts.push_back('\0');
        m_begin = m_made.m_texts.size();
        m_made.m_ends.push_back(static_cast<std::uint32_t>(m_begin));
        m_made.m_places.push_back(place);
        m_made.m_errors.resize(m_object / 64 + 1);
        if (m_isInError) {
            m_made.m_errors.back() |= std::uint64_t{1} << (m_object % 64);
        }
        ++m_object;
    }

    void endKind() { m_made.m_kindEnds.at(m_kind++) = m_object; }

    void finish()
    {
        m_made.m_texts.append(m_sharedTexts);
        for (const std::size_t end : m_sharedEnds) {
            m_made.m_ends.push_back(static_cast<std::uint32_t>(m_begin + end));
        }
        // Sorts the uses by text: first counts, then places.
        std::vector<std::uint32_t>& first = m_made.m_firstUse;
        first.resize(m_sharedEnds.size() + 1);
        for (const auto& [text, object] : m_uses) {
            ++first[text + 1];
        }
        for (std::size_t text = 0; text + 1 < first.size(); ++text) {
            first[text + 1] += first[text];
        }
        m_made.m_uses.resize(m_uses.size());
        std::vector<std::uint32_t> next = first;
        for (const auto& [text, object] : m_uses) {
            m_made.m_uses[next[text]++] = object;
        }
        m_made.m_texts.shrink_to_fit();
        m_made.m_ends.shrink_to_fit();
        m_made.m_places.shrink_to_fit();
        m_made.m_errors.shrink_to_fit();
    }

    SearchedConsole& m_made;
    std::size_t m_kind = 0;
    std::uint32_t m_object = 0;
    std::size_t m_begin = 0; ///< of the object's own texts
    bool m_isInError = false;
    const XMLElement* m_entry = nullptr;
    std::unordered_map<std::string, std::uint32_t> m_shared; ///< as the console has them
    std::string m_sharedTexts;
    std::vector<std::size_t> m_sharedEnds;
    std::vector<std::pair<std::uint32_t, std::uint32_t>> m_uses; ///< shared text and object
};

SearchedConsole::SearchedConsole(const ConsoleSnapshot& console)
    : m_name(console.name),
      m_address(console.address),
      m_numericAddress(numericAddressOf(console)),
      m_feeds(wasRead(console) ? console.feeds : nullptr),
      m_hasTrouble(hasTrouble(console))
{
    SearchedConsoleMaker(*this).make(console);
}

bool SearchedConsole::holdsFor(const ConsoleSnapshot& console) const
{
    return m_name == console.name && m_address == console.address && m_numericAddress == numericAddressOf(console) &&
           m_feeds == (wasRead(console) ? console.feeds : nullptr) && m_hasTrouble == hasTrouble(console);
}

std::size_t SearchedConsole::kindOf(std::uint32_t object) const
{
    return static_cast<std::size_t>(std::ranges::upper_bound(m_kindEnds, object) - m_kindEnds.begin());
}

XMLElement SearchedConsole::elementOf(std::uint32_t object) const
{
    const std::uint32_t place = m_places[object];
    return place != 0 ? m_feeds->feed(searchedKinds.at(kindOf(object))).root().at(place) : XMLElement();
}

std::string SearchedConsole::systemOf(const Partition& partition) const
{
    const auto system = m_systems.find(identityOfSystem(partition));
    return system != m_systems.end() ? ManagedSystem(elementOf(system->second)).name().value_or("") : std::string();
}

std::size_t SearchedConsole::membersInError(const XMLElement& group) const
{
    if (m_identitiesInError.empty()) {
        return 0;
    }
    const auto members = ResourceGroup(group).members();
    return static_cast<std::size_t>(std::ranges::count_if(members, [this](const ResourceGroup::Member& member) {
        return m_identitiesInError.contains(identityOfMember(member));
    }));
}

void SearchedConsole::find(std::string_view wanted, std::uint32_t console, FoundObjects& inError,
                           FoundObjects& others) const
{
    std::vector<std::uint64_t> found; // a bit for each object
    const auto add = [&found](std::uint32_t object) { found[object / 64] |= std::uint64_t{1} << (object % 64); };
    const auto next = [&](std::size_t from) {
        return static_cast<const char*>(
            ::memmem(m_texts.data() + from, m_texts.size() - from, wanted.data(), wanted.size()));
    };
    std::size_t text = 0;
    for (const char* place = next(0); place != nullptr; place = next(m_ends[text])) {
        found.resize(m_errors.size());
        const auto at = static_cast<std::size_t>(place - m_texts.data());
        // The next hit is near as a rule; a state's word is far behind all the names.
        for (int step = 0; step < 8 && m_ends[text] <= at; ++step) {
            ++text;
        }
        if (m_ends[text] <= at) {
            const auto from = m_ends.begin() + static_cast<std::ptrdiff_t>(text);
            text = static_cast<std::size_t>(std::upper_bound(from, m_ends.end(), at) - m_ends.begin());
        }
        if (text < objects()) {
            add(static_cast<std::uint32_t>(text));
        } else {
            const std::size_t shared = text - objects();
            std::for_each(m_uses.begin() + m_firstUse[shared], m_uses.begin() + m_firstUse[shared + 1], add);
        }
    }
    std::size_t kind = 0;
    for (std::size_t word = 0; word < found.size(); ++word) {
        for (std::uint64_t bits = found[word]; bits != 0; bits &= bits - 1) {
            const auto place = static_cast<unsigned>(std::countr_zero(bits));
            const auto object = static_cast<std::uint32_t>(word * 64 + place);
            while (m_kindEnds[kind] <= object) {
                ++kind;
            }
            ((m_errors[word] >> place & 1U) != 0 ? inError : others)[kind].push_back({console, object});
        }
    }
}

std::size_t SearchedConsole::memory() const
{
    std::size_t bytes = sizeof(*this) + m_texts.capacity() + m_name.capacity() + m_address.capacity();
    for (const auto* numbers : {&m_ends, &m_firstUse, &m_uses, &m_places}) {
        bytes += numbers->capacity() * sizeof(std::uint32_t);
    }
    bytes += m_errors.capacity() * sizeof(std::uint64_t);
    for (const std::string& identity : m_identitiesInError) {
        bytes += 4 * sizeof(void*) + sizeof(std::string) + identity.capacity(); // a node of the set
    }
    for (const auto& system : m_systems) {
        bytes += 4 * sizeof(void*) + sizeof(system) + system.first.capacity();
    }
    return bytes;
}

std::string typeAndModelOf(const MachineIdentity& identity)
{
    const std::string type = identity.machineType().value_or("");
    const std::string model = identity.model().value_or("");
    return type.empty() || model.empty() ? type + model : type + "-" + model;
}

} // namespace lodestar
