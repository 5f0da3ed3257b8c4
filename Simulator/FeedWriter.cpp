// SPDX-License-Identifier: Apache-2.0
#include "Simulator/FeedWriter.h"

#include "Simulator/XmlWriter.h"

namespace lodestar::simulator
{

namespace
{

/// Begins a blank; no text of an inventory contains it.
constexpr char mark = '\x01';

std::string blank(Blank which)
{
    return {mark, static_cast<char>('0' + static_cast<int>(which))};
}

std::string linkTo(std::string_view type)
{
    return "https://" + blank(Blank::Address) + ":" + std::to_string(consolePort) + "/rest/api/" +
           (type == "ServiceableEvent" ? "sem/" : "uom/") + std::string(type);
}

std::string linkTo(std::string_view type, const std::string& id)
{
    return linkTo(type) + "/" + id;
}

class FeedWriter
{
public:
    FeedWriter(const Inventory& inventory, std::size_t feedBytes) : m_inventory(inventory), m_feedBytes(feedBytes) {}

    std::string feed(std::string_view type)
    {
        if (type == "ManagementConsole") {
            return write(type, 1, [&](std::size_t /*i*/) { managementConsole(); });
        }
        if (type == "ManagedSystem") {
            return write(type, m_inventory.systems.size(), [&](std::size_t i) { system(m_inventory.systems[i]); });
        }
        if (type == "VirtualIOServer") {
            return write(type, m_inventory.vios.size(),
                         [&](std::size_t i) { partition("VirtualIOServer", m_inventory.vios[i]); });
        }
        if (type == "LogicalPartition") {
            return write(type, m_inventory.partitions.size(),
                         [&](std::size_t i) { partition("LogicalPartition", m_inventory.partitions[i]); });
        }
        if (type == "ServiceableEvent") {
            return write(type, m_inventory.events.size(), [&](std::size_t i) { event(m_inventory.events[i]); });
        }
        return write(type, m_inventory.groups.size(), [&](std::size_t i) { group(m_inventory.groups[i]); });
    }

private:
    template <typename WriteEntry>
    std::string write(std::string_view type, std::size_t entries, const WriteEntry& writeEntry)
    {
        m_xml = {};
        m_xml.raw(R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>)");
        m_xml.open("feed", {{"xmlns", "http://www.w3.org/2005/Atom"}});
        m_xml.text("id", makeIdentifier(type.size(), published.size()));
        m_xml.text("updated", published);
        m_xml.empty("link", {{"rel", "self"}, {"href", linkTo(type)}});
        for (std::size_t i = 0; i < entries; ++i) {
            // Padding is measured from the feed's start, so that an entry that grew too large leaves less padding to
            // the next.
            m_padTo = m_feedBytes * (i + 1) / entries;
            writeEntry(i);
        }
        m_xml.close();
        return m_xml.take();
    }

    void openEntry(std::string_view type, const std::string& id)
    {
        m_xml.open("entry");
        m_xml.text("id", id);
        m_xml.text("title", type);
        m_xml.text("published", published);
        m_xml.empty("link", {{"rel", "self"}, {"href", linkTo(type, id)}});
        m_xml.open("author");
        m_xml.text("name", "Corvel Console");
        m_xml.close();
        m_xml.open("content", {{"type", "application/vnd.ornis.varnex.uom+xml; type=" + std::string(type)}});
        m_xml.open("uom:" + std::string(type), {{"xmlns:uom", "urn:ornis:varnex:uom:2012_10"},
                                                {"xmlns", "urn:ornis:varnex:uom:2012_10"},
                                                {"schemaVersion", "V1_0"}});
        m_xml.open("Metadata");
        m_xml.open("Atom");
        m_xml.text("AtomID", id);
        m_xml.close();
        m_xml.close();
    }

    // Pads the entry with properties that no screen reads; most of a real console's are of this kind.
    void closeEntry()
    {
        for (std::size_t i = 0; m_xml.size() < m_padTo; ++i) {
            m_xml.open("AssignableAdapter", {{"kb", "CUR"}, {"kxe", "false"}});
            m_xml.text("AdapterIdentifier", makeIdentifier(m_xml.size(), i));
            m_xml.number("SlotNumber", static_cast<long long>(i));
            m_xml.text("Description", "Four-port network adapter, 25 Gbit/s");
            m_xml.text("AssignedTo", i % 3 == 0 ? "unassigned" : "partition");
            m_xml.close();
        }
        m_xml.close();
        m_xml.close();
        m_xml.close();
    }

    void machine(const std::string& element, const MachineIdentity& identity)
    {
        m_xml.open(element, {{"kb", "CUR"}, {"kxe", "false"}, {"schemaVersion", "V1_0"}});
        m_xml.text("MachineType", identity.type);
        m_xml.text("Model", identity.model);
        m_xml.text("SerialNumber", identity.serialNumber);
        m_xml.close();
    }

    void managementConsole()
    {
        const ConsoleIdentity& console = m_inventory.console;
        openEntry("ManagementConsole", blank(Blank::ConsoleID));
        machine("MachineTypeModelAndSerialNumber",
                {console.machine.type, console.machine.model, blank(Blank::ConsoleSerial)});
        m_xml.text("ManagementConsoleName", blank(Blank::ConsoleName));
        m_xml.open("ManagedSystems");
        for (const ManagedSystem& each : m_inventory.systems) {
            if (!each.isGone) {
                link("ManagedSystem", each.id);
            }
        }
        m_xml.close();
        m_xml.open("VersionInfo", {{"kb", "CUR"}, {"kxe", "false"}, {"schemaVersion", "V1_0"}});
        texts(console.version);
        m_xml.close();
        closeEntry();
    }

    void system(const ManagedSystem& system)
    {
        if (system.isGone) {
            return;
        }
        openEntry("ManagedSystem", system.id);
        m_xml.open("AssociatedSystemMemoryConfiguration", {{"kb", "CUR"}, {"kxe", "false"}});
        m_xml.number("ConfigurableSystemMemory", system.memoryMB);
        m_xml.number("InstalledSystemMemory", system.memoryMB);
        m_xml.close();
        m_xml.open("AssociatedSystemProcessorConfiguration", {{"kb", "CUR"}, {"kxe", "false"}});
        m_xml.text("ConfigurableSystemProcessorUnits", system.processorUnits);
        m_xml.text("InstalledSystemProcessorUnits", system.processorUnits);
        m_xml.close();
        machine("MachineTypeModelAndSerialNumber", system.machine);
        m_xml.text("PhysicalSystemAttentionLEDState", system.attentionLED);
        m_xml.text("PrimaryIPAddress", system.ipAddress);
        m_xml.textIfAny("ReferenceCode", system.referenceCode);
        m_xml.text("State", system.state);
        m_xml.text("SystemName", system.name);
        closeEntry();
    }

    void partition(std::string_view type, const Partition& partition)
    {
        if (partition.isGone) {
            return;
        }
        openEntry(type, partition.id);
        m_xml.empty("AssociatedManagedSystem",
                    {{"kb", "CUR"},
                     {"kxe", "false"},
                     {"href", linkTo("ManagedSystem", m_inventory.systems[partition.system].id)},
                     {"rel", "related"}});
        m_xml.number("PartitionID", partition.number);
        m_xml.text("PartitionName", partition.name);
        m_xml.text("PartitionState", partition.state);
        m_xml.text("PartitionType", partition.type);
        m_xml.textIfAny("ReferenceCode", partition.referenceCode);
        closeEntry();
    }

    void node(const std::string& element, const std::string& host, const MachineIdentity& identity)
    {
        m_xml.open(element);
        m_xml.text("hostName", host);
        machine("managedTypeModelSerial", identity);
        m_xml.close();
    }

    void event(const ServiceableEvent& event)
    {
        const ConsoleIdentity& console = m_inventory.console;
        const MachineIdentity identity = {console.machine.type, console.machine.model, blank(Blank::ConsoleSerial)};
        openEntry("ServiceableEvent", event.id);
        texts(event.fields);
        node("reportingConsoleNode", blank(Blank::ConsoleName), identity);
        if (event.failingSystem) {
            const ManagedSystem& failing = m_inventory.systems[*event.failingSystem];
            node("failingManagedSystemNode", failing.name, failing.machine);
        }
        node("analyzingConsoleNode", blank(Blank::ConsoleName), identity);
        m_xml.open("fieldReplaceableUnits");
        for (const Fields& unit : event.units) {
            m_xml.open("FieldReplaceableUnit");
            texts(unit);
            m_xml.close();
        }
        m_xml.close();
        closeEntry();
    }

    void texts(const Fields& fields)
    {
        for (const auto& [name, text] : fields) {
            m_xml.text(name, text);
        }
    }

    void link(std::string_view type, const std::string& id)
    {
        m_xml.empty("link", {{"href", linkTo(type, id)}, {"rel", "related"}});
    }

    template <typename Objects>
    void links(const std::string& element, std::string_view type, const std::vector<std::size_t>& indices,
               const Objects& objects)
    {
        m_xml.open(element, {{"kb", "CUR"}, {"kxe", "false"}});
        for (const std::size_t index : indices) {
            link(type, objects[index].id);
        }
        m_xml.close();
    }

    void group(const Group& group)
    {
        openEntry("Group", group.id);
        m_xml.text("GroupName", group.name);
        m_xml.text("GroupColor", group.color);
        links("AssociatedLogicalPartitions", "LogicalPartition", group.partitions, m_inventory.partitions);
        links("AssociatedVirtualIOServers", "VirtualIOServer", group.vios, m_inventory.vios);
        links("AssociatedManagedSystems", "ManagedSystem", group.systems, m_inventory.systems);
        closeEntry();
    }

    const Inventory& m_inventory;
    std::size_t m_feedBytes;
    std::size_t m_padTo = 0;
    XmlWriter m_xml;
};

} // namespace

std::string filled(const std::string& feed, const BlankValues& values)
{
    std::string text;
    text.reserve(feed.size());
    std::size_t at = 0;
    for (std::size_t next = 0; (next = feed.find(mark, at)) != std::string::npos; at = next + 2) {
        text.append(feed, at, next - at).append(values.at(static_cast<std::size_t>(feed[next + 1] - '0')));
    }
    return text.append(feed, at);
}

std::map<std::string, std::string, std::less<>> writeFeeds(const Inventory& inventory, std::size_t feedBytes)
{
    std::map<std::string, std::string, std::less<>> feeds;
    FeedWriter writer(inventory, feedBytes);
    for (const std::string_view type : feedTypes) {
        feeds.emplace(type, writer.feed(type));
    }
    return feeds;
}

} // namespace lodestar::simulator
