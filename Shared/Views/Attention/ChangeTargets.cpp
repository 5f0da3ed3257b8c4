// SPDX-License-Identifier: Apache-2.0
#include "Views/Attention/ChangeTargets.h"

#include "Controllers/REST/RESTHandler.h"
#include "Fleet/ChangeDays.h"
#include "Inventory/Identity.h"
#include "Views/Attention/ObjectScenes.h"
#include "Views/Common/Scenes.h"

namespace lodestar
{

CorvelRef ChangeTargets::consoleOf(const Change& change)
{
    if (m_consoles.empty()) {
        for (const CorvelRef& corvel : RESTHandler::sharedInstance().corvelList()) {
            m_consoles.try_emplace(corvel->address().value_or(""), corvel);
        }
    }
    const auto found = m_consoles.find(change.address);
    return found != m_consoles.end() ? found->second : nullptr;
}

const ChangeTargets::Objects& ChangeTargets::objectsOf(const Corvel& corvel, const std::string& type)
{
    const auto [place, isNew] = m_objects.try_emplace({&corvel, type});
    if (isNew) {
        for (const XMLElement& entry : feedOfType(corvel, type).entries()) {
            if (XMLElement object = contentOf(entry, type)) {
                place->second.try_emplace(identityOfEntry(entry, type), std::move(object));
            }
        }
    }
    return place->second;
}

XMLElement ChangeTargets::objectOf(const Change& change)
{
    const CorvelRef corvel = consoleOf(change);
    if (!corvel || change.object.identifier.empty()) {
        return {};
    }
    const Objects& objects = objectsOf(*corvel, change.object.type);
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

void ChangeTargets::forget()
{
    m_consoles.clear();
    m_objects.clear();
}

} // namespace lodestar
