// SPDX-License-Identifier: Apache-2.0
#include "Fleet/Registry.h"

#include "Application/Model/StoreStack.h"
#include "Controllers/REST/RESTHandler.h"
#include "Fleet/Attention.h"
#include "Fleet/History.h"
#include "Fleet/Readings.h"
#include "Fleet/RecentSearches.h"
#include "Inventory/ConsoleInformation.h"
#include "Platform/NotificationCenter.h"
#include "Platform/UserDefaults.h"

#include <algorithm>
#include <tuple>

namespace lodestar
{
namespace
{

void adoptVersion(Corvel& corvel)
{
    corvel.setVersion(ConsoleInformation::of(feedOfType(corvel, ObjectType::ManagementConsole)).version());
}

void tellOfChange()
{
    NotificationCenter::defaultCenter().postNotification("CorvelsDidChange");
}

/// Two consoles may have one address, and then share what is remembered of it.
void forgetHistoryOfUnregistered(const std::string& address)
{
    // First, so that the watch takes the address out of its settings: they are in the history, too.
    tellOfChange();
    const std::vector<CorvelRef>& corvels = RESTHandler::sharedInstance().corvelList();
    if (std::ranges::none_of(corvels, [&address](const CorvelRef& other) { return other->address() == address; })) {
        History::shared().forget(address);
    }
}

} // namespace

CorvelRef insertNewCorvel()
{
    return std::static_pointer_cast<Corvel>(
        StoreStack::shared().managedObjectContext().insertNewObject(Corvel::entityName));
}

void deleteCorvel(const CorvelRef& corvel)
{
    StoreStack::shared().managedObjectContext().deleteObject(corvel);
    Readings::shared().forget(*corvel);
}

void changeAddress(Corvel& corvel, const std::string& address)
{
    const auto before = corvel.address();
    if (before == address) {
        return;
    }
    corvel.setAddress(address);
    Readings::shared().forget(corvel);
    if (before) {
        forgetHistoryOfUnregistered(*before);
    }
}

void saveIgnoringErrors()
{
    std::ignore = StoreStack::shared().managedObjectContext().save();
}

CorvelRef corvelAtRow(int row)
{
    const std::vector<CorvelRef>& corvels = RESTHandler::sharedInstance().corvelList();
    const auto index = static_cast<std::size_t>(row);
    return row >= 0 && index < corvels.size() ? corvels[index] : nullptr;
}

bool isRegistered(const CorvelRef& corvel)
{
    const std::vector<CorvelRef>& corvels = RESTHandler::sharedInstance().corvelList();
    return std::ranges::find(corvels, corvel) != corvels.end();
}

bool isAddressRegistered(const Corvel& corvel)
{
    const std::vector<CorvelRef>& corvels = RESTHandler::sharedInstance().corvelList();
    return std::ranges::any_of(
        corvels, [address = corvel.address()](const CorvelRef& other) { return other->address() == address; });
}

void addDemoCorvel()
{
    const CorvelRef demo = insertNewCorvel();
    demo->setName("Demo Corvel");
    demo->setAddress("127.0.0.1");
    demo->setDemo(true);
    RESTHandler::sharedInstance().addCorvel(demo);
    tellOfChange();
}

void deleteCorvelAtIndex(std::size_t index)
{
    RESTHandler& rest = RESTHandler::sharedInstance();
    const CorvelRef corvel = rest.corvelList()[index];
    const std::string address = corvel->address().value_or(std::string());
    UserDefaults::standard().removeObjectForKey(address);
    RecentSearches::forgetThoseOf(snapshotOf(corvel));
    deleteCorvel(corvel);
    saveIgnoringErrors();
    rest.removeCorvelAtIndex(index);
    forgetHistoryOfUnregistered(address);
}

void deleteEveryCorvel()
{
    RESTHandler& rest = RESTHandler::sharedInstance();
    // First the records that no list holds because their adding was cut short: the next save would store them.
    for (const CorvelRef& corvel : rest.fetchCorvels()) {
        if (!isRegistered(corvel)) {
            deleteCorvel(corvel);
        }
    }
    for (const CorvelRef& corvel : rest.corvelList()) {
        deleteCorvel(corvel);
        saveIgnoringErrors();
    }
    rest.setCorvelList({});
    saveIgnoringErrors();
    Readings::shared().forgetAll();
    History::shared().forgetAll();
    tellOfChange();
}

void removeEveryDefault(UserDefaults& defaults)
{
    for (const std::string& key : defaults.allKeys()) {
        defaults.removeObjectForKey(key);
    }
    defaults.synchronize();
}

void forgetFetchedData()
{
    for (const CorvelRef& corvel : RESTHandler::sharedInstance().corvelList()) {
        corvel->setRestData(nullptr);
        corvel->completedFetch = false;
    }
    tellOfChange();
}

void forgetSessionKeyOfUnregistered(const Corvel& corvel)
{
    const auto address = corvel.address();
    // Look at every record, not only at the listed ones: a console that is being added has its key before it is listed.
    const std::vector<CorvelRef> corvels = RESTHandler::sharedInstance().fetchCorvels();
    const bool shared =
        std::ranges::any_of(corvels, [&address](const CorvelRef& other) { return other->address() == address; });
    if (address && !shared) {
        UserDefaults::standard().removeObjectForKey(*address);
    }
}

void finishRefresh(Corvel& corvel)
{
    adoptVersion(corvel);
    saveIgnoringErrors();
    corvel.completedFetch = true;
}

void failRefresh(Corvel& corvel)
{
    corvel.completedFetch = true;
    corvel.isOnline = false;
}

void finishAdding(const CorvelRef& corvel)
{
    adoptVersion(*corvel);
    corvel->completedFetch = true;
    RESTHandler::sharedInstance().addCorvel(corvel);
    saveIgnoringErrors();
    History::shared().add(corvel, Readings::shared().of(*corvel), corvel->restData());
    tellOfChange();
}

} // namespace lodestar
