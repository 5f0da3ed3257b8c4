// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Findings.h"
#include "Inventory/ManagedSystem.h"
#include "Inventory/Partition.h"
#include "Inventory/ResourceGroup.h"
#include "Inventory/ServiceableEvent.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <utility>

namespace lodestar::test
{

using namespace std::chrono_literals;

/// When every test takes place: 12 March 2026, 09:41 UTC.
inline const WallTime now(std::chrono::seconds(1'773'308'460));

/// A console whose feeds, reading and memory a test writes itself.
class HandMadeConsole
{
public:
    explicit HandMadeConsole(std::string name) : m_name(std::move(name))
    {
        corvel->setName(m_name);
        corvel->setAddress(m_name + ".example");
        reading.outcome = Reading::Outcome::Complete;
        reading.ended = now - 2min;
        for (std::size_t i = 0; i < feedTable.size(); ++i) {
            reading.feeds.at(i).type = feedTable.at(i).type;
        }
    }

    /// Adds an object with these fields to the feed of its type, or to another.
    void add(std::string_view type, const std::string& id, const std::string& fields, std::string_view feed = {})
    {
        const std::string atom = id.empty() ? "" : "<Metadata><Atom><AtomID>" + id + "</AtomID></Atom></Metadata>";
        const std::string tag(type);
        entries[feed.empty() ? type : feed] +=
            "<entry><content><" + tag + ">" + atom + fields + "</" + tag + "></content></entry>";
    }
    void addSystem(const std::string& id, const std::string& state, bool lit = false, const std::string& code = "")
    {
        add(ObjectType::ManagedSystem, id,
            field("SystemName", "name of " + id) + field("State", state) + field("ReferenceCode", code) +
                field("PhysicalSystemAttentionLEDState", lit ? "true" : "false"));
    }
    void addPartition(std::string_view type, const std::string& id, const std::string& state,
                      const std::string& system = "", const std::string& code = "")
    {
        add(type, id,
            "<AssociatedManagedSystem href='https://c:12443/rest/api/uom/ManagedSystem/" + system + "'/>" +
                field("PartitionName", "name of " + id) + field("PartitionState", state) +
                field("ReferenceCode", code));
    }
    void addEvent(const std::string& id, const std::string& status, WallTime last, const std::string& fields = "")
    {
        const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(last.time_since_epoch()).count();
        add(ObjectType::ServiceableEvent, id,
            field("problemNumber", id) + field("problemState", status) + field("shortDescription", "name of " + id) +
                field("lastReportedTimestamp", std::to_string(seconds)) + fields);
    }
    static std::string field(const std::string& name, const std::string& text)
    {
        return "<" + name + ">" + text + "</" + name + ">";
    }

    KnownObject& remember(std::string_view type, const std::string& id, const std::string& state, WallTime since)
    {
        KnownObject& object = memory.objects[{std::string(type), id}];
        object.state = state;
        object.stateSince = object.litSince = {since};
        memory.wasRead = true;
        return object;
    }
    void failFeed(std::string_view type)
    {
        for (FeedReading& feed : reading.feeds) {
            if (feed.type == type) {
                feed.error = Error{"HTTP", 500, {}, {}, nullptr};
            }
        }
    }

    ConsoleSnapshot snapshot() const
    {
        auto feeds = std::make_shared<FeedDictionary>();
        for (const auto& [type, text] : entries) {
            const bool isNA = text == "NA";
            feeds->setFeed(type, isNA ? Feed() : Feed(XMLElement::parse("<feed>" + text + "</feed>").value()));
        }
        return {corvel,
                m_name,
                m_name + ".example",
                std::make_shared<const Reading>(reading),
                std::move(feeds),
                std::make_shared<const ConsoleMemory>(memory)};
    }

    std::shared_ptr<Corvel> corvel = std::make_shared<Corvel>();
    std::map<std::string_view, std::string> entries; ///< of each feed
    Reading reading;
    ConsoleMemory memory;

private:
    std::string m_name;
};

} // namespace lodestar::test
