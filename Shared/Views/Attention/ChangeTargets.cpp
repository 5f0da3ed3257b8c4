// SPDX-License-Identifier: Apache-2.0
#include "Views/Attention/ChangeTargets.h"

#include "Controllers/REST/RESTHandler.h"
#include "Fleet/ChangeDays.h"
#include "Inventory/Identity.h"
#include "Platform/Queues/FreedElsewhere.h"
#include "Views/Attention/ObjectScenes.h"
#include "Views/Common/Scenes.h"

namespace lodestar
{

ChangeTargets::ConsolesByAddress ChangeTargets::registeredConsoles()
{
    ConsolesByAddress consoles;
    for (const CorvelRef& corvel : RESTHandler::sharedInstance().corvelList()) {
        consoles.try_emplace(corvel->address().value_or(""), corvel);
    }
    return consoles;
}

CorvelRef ChangeTargets::consoleOf(const Change& change)
{
    if (!m_consoles) {
        m_consoles = registeredConsoles();
    }
    const auto found = m_consoles->find(change.address);
    return found != m_consoles->end() ? found->second : nullptr;
}

const ChangeTargets::Objects& ChangeTargets::objectsOf(const Corvel& corvel, const std::string& type)
{
    std::shared_ptr<const Objects>& known = m_objects[{&corvel, type}];
    if (known == nullptr) {
        auto objects = std::make_unique<Objects>(Objects{.feeds = corvel.restData()});
        const Feed feed = objects->feeds != nullptr ? objects->feeds->feed(type) : Feed();
        for (const XMLElement& entry : feed.entries()) {
            if (XMLElement object = contentOf(entry, type)) {
                objects->byIdentity.try_emplace(identityOfEntry(entry, type), std::move(object));
            }
        }
        known = freedElsewhere(std::move(objects));
    }
    return *known;
}

XMLElement ChangeTargets::objectOf(const Change& change)
{
    const CorvelRef corvel = consoleOf(change);
    if (!corvel || change.object.identifier.empty()) {
        return {};
    }
    const auto& objects = objectsOf(*corvel, change.object.type).byIdentity;
    const auto found = objects.find(change.object.identifier);
    return found != objects.end() ? found->second : XMLElement();
}

bool ChangeTargets::leadsOn(const Change& change)
{
    return isOfConsole(change) ? consoleOf(change) != nullptr : static_cast<bool>(objectOf(change));
}

bool ChangeTargets::open(const Change& change, const ViewController& from)
{
    if (!leadsOn(change)) {
        return false;
    }
    if (isOfConsole(change)) {
        openScene(from, Scenes::connectionView, consoleOf(change));
    } else {
        openObject(from, consoleOf(change), change.object.type, objectOf(change));
    }
    return true;
}

bool ChangeTargets::follow()
{
    if (ConsolesByAddress consoles = registeredConsoles(); m_consoles != consoles) {
        m_consoles = std::move(consoles);
        m_objects.clear();
        return true;
    }
    // The consoles are those that `m_consoles` holds.
    const auto isOld = [](const auto& each) { return each.second->feeds != each.first.first->restData(); };
    return std::erase_if(m_objects, isOld) > 0;
}

} // namespace lodestar
