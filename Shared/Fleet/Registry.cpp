// SPDX-License-Identifier: Apache-2.0
#include "Fleet/Registry.h"

#include "Application/Model/StoreStack.h"
#include "Controllers/REST/RESTHandler.h"
#include "Platform/UserDefaults.h"

#include <algorithm>
#include <tuple>

namespace lodestar
{

CorvelRef insertNewCorvel()
{
    return std::static_pointer_cast<Corvel>(
        StoreStack::shared().managedObjectContext().insertNewObject(Corvel::entityName));
}

void deleteCorvel(const CorvelRef& corvel)
{
    StoreStack::shared().managedObjectContext().deleteObject(corvel);
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

void forgetSessionKeyOfUnregistered(const Corvel& corvel)
{
    const auto address = corvel.address();
    // Of all records, not of the list alone: one that is being added has its key before it is listed.
    const std::vector<CorvelRef> corvels = RESTHandler::sharedInstance().fetchCorvels();
    const bool shared =
        std::ranges::any_of(corvels, [&address](const CorvelRef& other) { return other->address() == address; });
    if (address && !shared) {
        UserDefaults::standard().removeObjectForKey(*address);
    }
}

RXPromise<std::string> fetchInventory(const CorvelRef& corvel, Urgency urgency)
{
    return RESTHandler::sharedInstance()
        .login(corvel, CheckToken::Yes, urgency)
        .then([corvel, urgency](const SessionKey& key) {
            corvel->isOnline = true;
            return RESTHandler::sharedInstance().fetchAllDataForCorvel(corvel, key, urgency);
        })
        .then([corvel](const std::shared_ptr<const FeedDictionary>& feeds) {
            corvel->setRestData(feeds);
            return RESTHandler::sharedInstance().processInformationForCorvel(corvel);
        });
}

RXPromise<XMLElement> fetchFeedWithStoredKey(const CorvelRef& corvel, std::string_view type)
{
    if (!corvel) {
        RXPromise<XMLElement> promise;
        promise.rejectWithReason("no console");
        return promise;
    }
    return RESTHandler::sharedInstance().login(corvel, CheckToken::No).then([corvel, type](const SessionKey& key) {
        return RESTHandler::sharedInstance().fetchDataOfType(type, corvel, schemaOf(type), key);
    });
}

std::optional<std::string> fetchLinkedText(const std::string& link, const CorvelRef& corvel)
{
    return corvel ? RESTHandler::sharedInstance().fetchDataFromAtomLink(link, *corvel) : std::nullopt;
}

} // namespace lodestar
