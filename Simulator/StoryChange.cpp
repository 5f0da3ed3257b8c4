// SPDX-License-Identifier: Apache-2.0
// What the lines of a story do to an inventory.
#include "Simulator/Story.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>
#include <type_traits>

namespace lodestar::simulator
{

namespace
{

template <typename Number>
Number numberOf(std::string_view text)
{
    Number number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || number < 0) {
        throw std::invalid_argument("not a number: " + std::string(text));
    }
    return number;
}

bool isNumber(std::string_view text)
{
    return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

/// The listed objects that the text names.
template <typename Object>
std::vector<Object*> chosen(std::vector<Object>& list, const std::string& text)
{
    std::vector<Object*> found;
    const std::size_t dash = text.find('-');
    const std::string first = text.substr(0, dash);
    const bool isRange = dash != std::string::npos && isNumber(first) && isNumber(text.substr(dash + 1));
    if (isNumber(text) || isRange) {
        const auto from = numberOf<std::size_t>(first);
        const auto to = isRange ? numberOf<std::size_t>(text.substr(dash + 1)) : from;
        for (std::size_t i = from; i <= to && i < list.size() && to < list.size(); ++i) {
            found.push_back(&list[i]);
        }
    } else {
        for (Object& each : list) {
            if (text == "all" || each.name == text) {
                found.push_back(&each);
            }
        }
    }
    if (found.empty() && text != "all") {
        throw std::invalid_argument("there is no " + text);
    }
    return found;
}

std::optional<std::string> codeOf(const std::string& text)
{
    return text == "none" ? std::nullopt : std::optional(text);
}

template <typename Object>
void changeObjects(std::vector<Object>& list, const Deed& deed)
{
    for (Object* each : chosen(list, deed.object)) {
        each->name = deed.value("name").value_or(each->name);
        each->state = deed.value("state").value_or(each->state);
        if (const auto code = deed.value("code")) {
            each->referenceCode = codeOf(*code);
        }
        if constexpr (std::is_same_v<Object, ManagedSystem>) {
            const std::string led = deed.value("led").value_or(each->attentionLED);
            each->attentionLED = led == "on" ? "true" : led == "off" ? "false" : led;
        }
        each->isGone = deed.is("gone") || (each->isGone && !deed.is("back"));
    }
}

std::string& fieldOf(ServiceableEvent& event, std::string_view name)
{
    const auto field = std::ranges::find(event.fields, name, &Fields::value_type::first);
    return field != event.fields.end() ? field->second : event.fields.emplace_back(name, "").second;
}

ServiceableEvent newEvent(const Inventory& inventory, const Deed& deed, std::int64_t now)
{
    const std::int64_t first = now - numberOf<int>(deed.value("ago").value_or("0"));
    ServiceableEvent event;
    event.id = makeIdentifier(static_cast<std::uint64_t>(deed.line), static_cast<std::uint64_t>(deed.at.count()));
    event.fields = {{"problemNumber", deed.object},
                    {"callHomeEnabled", "false"},
                    {"problemManagementHardwareRecord", deed.object},
                    {"ApprovalState", "Pending approval"},
                    {"referenceCode", ""},
                    {"problemState", "Open"},
                    {"firstReportedTimestamp", std::to_string(first)},
                    {"lastReportedTimestamp", std::to_string(first)},
                    {"primaryTimestamp", std::to_string(first)},
                    {"shortDescription", ""},
                    {"eventSeverity", "40"},
                    {"notificationType", "Customer"},
                    {"duplicateCount", "0"}};
    if (!inventory.systems.empty()) {
        event.failingSystem = 0;
    }
    return event;
}

void describeEvent(Inventory& inventory, ServiceableEvent& event, const Deed& deed)
{
    for (const auto& [key, field] : {std::pair{"code", "referenceCode"},
                                     {"text", "shortDescription"},
                                     {"times", "duplicateCount"},
                                     {"severity", "eventSeverity"},
                                     {"approval", "ApprovalState"}}) {
        if (const auto value = deed.value(key)) {
            fieldOf(event, field) = *value;
        }
    }
    if (const auto callsHome = deed.value("callhome")) {
        fieldOf(event, "callHomeEnabled") = *callsHome == "yes" ? "true" : "false";
    }
    if (const auto system = deed.value("system")) {
        event.failingSystem =
            static_cast<std::size_t>(chosen(inventory.systems, *system).front() - inventory.systems.data());
    }
}

void changeEvent(Inventory& inventory, const Deed& deed, std::int64_t now)
{
    auto event = std::ranges::find_if(
        inventory.events, [&](ServiceableEvent& each) { return fieldOf(each, "problemNumber") == deed.object; });
    if (event == inventory.events.end()) {
        if (!deed.is("open")) {
            throw std::invalid_argument("there is no event " + deed.object);
        }
        // Consoles list the newest event first.
        event = inventory.events.insert(inventory.events.begin(), newEvent(inventory, deed, now));
    } else if (deed.is("gone")) {
        inventory.events.erase(event);
        return;
    } else {
        fieldOf(*event, "lastReportedTimestamp") = std::to_string(now);
    }
    if (deed.is("open") || deed.is("closed")) {
        fieldOf(*event, "problemState") = deed.is("open") ? "Open" : "Closed";
    }
    describeEvent(inventory, *event, deed);
}

/// Everything runs, no lamp is lit, and there is no event.
void calm(Inventory& inventory)
{
    for (ManagedSystem& system : inventory.systems) {
        system.state = "operating";
        system.attentionLED = "false";
        system.referenceCode = "00000000";
    }
    for (auto* list : {&inventory.partitions, &inventory.vios}) {
        for (Partition& partition : *list) {
            partition.state = "running";
            partition.referenceCode.reset();
        }
    }
    inventory.events.clear();
}

} // namespace

void change(Inventory& inventory, const Deed& deed, std::int64_t now)
{
    if (deed.kind == "system") {
        changeObjects(inventory.systems, deed);
    } else if (deed.kind == "server") {
        changeObjects(inventory.vios, deed);
    } else if (deed.kind == "partition") {
        changeObjects(inventory.partitions, deed);
    } else if (deed.kind == "event") {
        changeEvent(inventory, deed, now);
    } else {
        calm(inventory);
    }
}

} // namespace lodestar::simulator
