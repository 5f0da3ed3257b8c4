// SPDX-License-Identifier: Apache-2.0
#include "Fleet/Registry.h"
#include "Simulator/FeedWriter.h"
#include "Tools/Screenshots/NightFleet.h"
#include "Tools/Screenshots/NightReading.h"

#include <fmt/core.h>

namespace lodestar::scenes
{
namespace
{

using namespace std::chrono_literals;

constexpr WallTime morning = std::chrono::sys_days(std::chrono::year(2026) / std::chrono::March / 12) + 9h + 39min;
constexpr std::size_t crowded = 7; ///< the console with most of what is wrong
constexpr std::size_t calm = 100;  ///< the first of the consoles that differ by their names alone

simulator::Inventory inventoryOf(std::size_t number)
{
    simulator::Settings settings;
    settings.systems = number == crowded ? 4 : 2;
    settings.partitions = number == crowded ? 20 : 2;
    settings.vios = 2;
    settings.events = number < calm ? 12 : 2;
    settings.groups = 0;
    simulator::Inventory inventory = makeInventory(settings, number);
    for (simulator::ManagedSystem& system : inventory.systems) {
        system.state = "operating";
        system.attentionLED = number % 20 == 3 ? "true" : "false";
    }
    for (auto* list : {&inventory.partitions, &inventory.vios}) {
        for (simulator::Partition& partition : *list) {
            partition.state = "running";
        }
    }
    return inventory;
}

void breakCrowded(simulator::Inventory& inventory)
{
    inventory.systems[0].state = "incomplete";
    inventory.systems[0].attentionLED = "true";
    inventory.vios[1].state = "error";
    for (std::size_t i = 0; i < 63; ++i) {
        inventory.partitions[i].state = i < 54 ? "not activated" : "error";
        inventory.partitions[i].referenceCode = i < 54 ? std::optional<std::string>() : "X417-2208";
    }
}

std::shared_ptr<const FeedDictionary> feedsOf(const simulator::Inventory& inventory, const Condition& condition)
{
    auto feeds = std::make_shared<FeedDictionary>();
    for (const auto& [type, feed] : simulator::writeFeeds(inventory, 0)) {
        const bool missing = condition.missing.contains(type);
        const std::string text = simulator::filled(feed, {"192.0.2.1", "corvel", "0C5E11A", "1"});
        feeds->setFeed(type, missing ? Feed::notAvailable() : Feed(XMLElement::parse(text).value()));
    }
    return feeds;
}

CorvelRef makeConsole(std::size_t number)
{
    CorvelRef corvel = insertNewCorvel();
    corvel->setName(fmt::format("Quayside {}", number + 5));
    corvel->setAddress(fmt::format("corvel-{}.quayside.example", number + 5));
    return corvel;
}

Condition conditionOf(std::size_t number)
{
    Condition condition;
    if (number >= 40 && number < 76) {
        condition.offline = Condition::Offline::Silent;
    } else if (number == 90 || number == 91) {
        condition.missing["Group"] = 503;
    }
    return condition;
}

std::vector<CorvelRef> makeMany()
{
    std::vector<CorvelRef> records;
    const std::shared_ptr<const FeedDictionary> usual = feedsOf(inventoryOf(calm), {});
    for (std::size_t i = 0; i < 500; ++i) {
        const CorvelRef corvel = records.emplace_back(makeConsole(i));
        simulator::Inventory inventory = inventoryOf(i);
        const auto before = i < calm ? feedsOf(inventory, {}) : usual;
        endReading(corvel, readingOf({}, *corvel, *before, morning - 15min), before);
        if (i == crowded) {
            breakCrowded(inventory);
        }
        const Condition condition = conditionOf(i);
        const auto feeds = i < calm ? feedsOf(inventory, condition) : usual;
        endReading(corvel, readingOf(condition, *corvel, *feeds, morning), feeds);
    }
    return records;
}

} // namespace

void showManyConsoles(SceneStage& stage)
{
    constexpr int many = 500;
    showFleet(stage, many, &makeMany);
}

} // namespace lodestar::scenes
