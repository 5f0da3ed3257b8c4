// SPDX-License-Identifier: Apache-2.0
#include "Controllers/REST/RESTHandler.h"
#include "Fleet/AttemptReading.h"
#include "Fleet/InventoryFetch.h"
#include "Fleet/Readings.h"
#include "Fleet/Registry.h"

#include <algorithm>
#include <utility>

namespace lodestar
{

namespace
{

/// On the main thread, where records are deleted: what was forgotten with a record must not come back. A record with
/// another address by now is another console.
void publish(const InventoryFetch& fetch)
{
    const CorvelRef& corvel = fetch.corvel();
    if (corvel->isDeleted()) {
        Readings::shared().forget(*corvel);
    } else if (corvel->address().value_or("") == fetch.address()) {
        fetch.publishAs(corvel);
        if (isRegistered(corvel)) {
            fetch.addToHistoryAs(corvel);
        }
    }
}

void addAttempt(const CorvelRef& corvel, std::string_view type, const std::vector<Exchange>& exchanges,
                const Result<XMLElement>& root)
{
    const auto* const row = std::ranges::find(feedTable, type, &FeedKind::type);
    if (row == feedTable.end() || corvel->isDeleted()) {
        return;
    }
    if (!exchanges.empty()) {
        Readings::shared().addFeed(corvel, feedReadingOf(row->type, exchanges.front()));
    } else if (root) {
        Readings::shared().addFeed(corvel,
                                   feedReadingOf(row->type, Feed(root.value()), std::chrono::system_clock::now()));
    }
}

} // namespace

RXPromise<std::string> fetchInventory(const CorvelRef& corvel, Urgency urgency)
{
    Readings::shared().begin(corvel);
    const auto fetch = std::make_shared<InventoryFetch>(corvel);
    return fetch->start(urgency).thenOnMain(
        [fetch](const std::string& done) {
            publish(*fetch);
            return Result<std::string>(done);
        },
        [fetch](const Error& error) {
            publish(*fetch);
            return Result<std::string>(error);
        });
}

bool mayFinishRefresh(const CorvelRef& corvel)
{
    if (!isRegistered(corvel)) {
        forgetSessionKeyOfUnregistered(*corvel);
        return false;
    }
    return corvel->restData() != nullptr;
}

RXPromise<std::string> refreshCorvel(const CorvelRef& corvel, Urgency urgency)
{
    return fetchInventory(corvel, urgency)
        .thenOnMain(
            [corvel](const std::string& done) {
                if (mayFinishRefresh(corvel)) {
                    finishRefresh(*corvel);
                }
                return Result<std::string>(done);
            },
            [corvel](const Error& error) {
                failRefresh(*corvel);
                return Result<std::string>(error);
            });
}

RXPromise<XMLElement> fetchFeedWithStoredKey(const CorvelRef& corvel, std::string_view type)
{
    if (!corvel) {
        RXPromise<XMLElement> promise;
        promise.rejectWithReason("no console");
        return promise;
    }
    const Asking asking(Urgency::Person, std::make_shared<ExchangeLog>());
    return RESTHandler::sharedInstance()
        .login(corvel, CheckToken::No)
        .then([corvel, type, asking](const SessionKey& key) {
            return RESTHandler::sharedInstance().fetchDataOfType(type, corvel, schemaOf(type), key, asking);
        })
        .then(
            [corvel, type, asking](const XMLElement& root) {
                Result<XMLElement> result(root);
                addAttempt(corvel, type, asking.log->take(), result);
                return result;
            },
            [corvel, type, asking](const Error& error) {
                Result<XMLElement> result(error);
                addAttempt(corvel, type, asking.log->take(), result);
                return result;
            });
}

} // namespace lodestar
