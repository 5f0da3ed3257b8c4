// SPDX-License-Identifier: Apache-2.0
#include "Controllers/REST/LinkedText.h"
#include "Controllers/REST/RESTHandler.h"
#include "Controllers/REST/RESTSupport.h"
#include "Feedback/VireoLogger.h"
#include "Inventory/ManagedSystem.h"
#include "Platform/Resources.h"
#include "Platform/URLLoading/URLError.h"
#include "Platform/URLLoading/URLLoading.h"
#include "XML/KeptRoom.h"

#include <simdjson.h>

#include <mutex>
#include <utility>

namespace lodestar
{

namespace
{

constexpr std::string_view sourceFile = "Shared/Controllers/REST/RESTHandler";

/// Collects one console's feeds as they come in, from several threads.
class FeedCollector
{
public:
    explicit FeedCollector(std::shared_ptr<KeptRoom::Share> room) : m_room(std::move(room)) {}
    void set(std::string_view type, Feed feed)
    {
        const std::lock_guard lock(m_mutex);
        m_room->didKeep(feed.memory());
        m_feeds->setFeed(type, std::move(feed));
    }
    /// Call once every feed is in.
    std::shared_ptr<const FeedDictionary> take()
    {
        const std::lock_guard lock(m_mutex);
        return std::exchange(m_feeds, nullptr);
    }

private:
    std::mutex m_mutex;
    const std::shared_ptr<KeptRoom::Share> m_room;
    std::shared_ptr<FeedDictionary> m_feeds = std::make_shared<FeedDictionary>();
};

/// The memory of the record's present feeds; the new feeds will take about as much.
std::size_t keptFor(const Corvel& corvel)
{
    const auto feeds = corvel.restData();
    return feeds != nullptr ? feeds->memory() : 0;
}

/// Settles the promise with the root of a feed's answer. `label` names the feed in the log.
void settle(const RXPromise<XMLElement>& promise, const Result<URLLoad>& load, const std::string& label,
            const ExchangeEntry& entry)
{
    const auto logFailure = [&label](const std::string& cause) {
        LODESTAR_LOG(sourceFile, "-[RESTHandler fetchDataOfType:corvel:schema:key:]", "Feed failed: {}: {}", label,
                     cause);
    };
    if (!load) {
        entry.close(load);
        logFailure(causeOf(load));
        promise.rejectWithReason(load.error());
        return;
    }
    if (load.value().response.statusCode != 200) {
        entry.close(load);
        logFailure(causeOf(load));
        promise.rejectWithReason();
        return;
    }
    Result<XMLElement> root = XMLElement::parse(load.value().body);
    if (!root) {
        entry.close(load, root.error());
        logFailure(description(root.error()));
        promise.rejectWithReason(root.error());
        return;
    }
    if (entry.isWanted()) {
        entry.close(load, std::nullopt, Feed(root.value()).entryCount());
    }
    promise.fulfillWithValue(std::move(root).value());
}

} // namespace

RXPromise<XMLElement> RESTHandler::fetchDataOfType(std::string_view type, const CorvelRef& corvel,
                                                   std::string_view schema, const SessionKey& key, const Asking& asking)
{
    RXPromise<XMLElement> promise;
    if (corvel->demo() == 1) {
        promise.fulfillWithValue(getDemoDataForContentType(type));
        return promise;
    }
    URLRequest request;
    request.url = consoleURL(*corvel, schema, type);
    request.timeout = asking.feedTimeout;
    request.urgency = asking.urgency;
    if (key) {
        request.headers.setValue("X-API-Session", *key);
    }
    request.headers.addValue("Accept", "application/atom+xml");
    const ExchangeEntry entry(asking.log, Exchange::Kind::Feed, type, request);
    sendAsynchronousRequest(std::move(request), m_queue,
                            [promise, entry, label = fmt::format("{} of {}", type, shownText(corvel->name()))](
                                const Result<URLLoad>& load) { settle(promise, load, label, entry); });
    return promise;
}

RXPromise<std::shared_ptr<const FeedDictionary>>
RESTHandler::fetchAllDataForCorvel(const CorvelRef& corvel, const SessionKey& key, const Asking& asking)
{
    RXPromise<std::shared_ptr<const FeedDictionary>> promise;
    const auto fetch = [this, promise, corvel, key, asking](std::shared_ptr<KeptRoom::Share> room) {
        const auto collector = std::make_shared<FeedCollector>(std::move(room));
        std::vector<RXPromise<std::string>> continuations;
        continuations.reserve(feedTable.size());
        for (const auto& [type, schema] : feedTable) {
            // Both handlers return a text, so that one unreachable feed does not fail the whole.
            continuations.push_back(fetchDataOfType(type, corvel, schema, key, asking)
                                        .then(
                                            [collector, type = type](XMLElement root) {
                                                collector->set(type, Feed(std::move(root)));
                                                return std::string("OK");
                                            },
                                            [collector, type = type](const Error&) {
                                                collector->set(type, Feed::notAvailable());
                                                return std::string("not reachable");
                                            }));
        }
        RXPromise<std::string>::all(continuations).then([promise, collector](const std::vector<std::string>&) {
            promise.fulfillWithValue(collector->take());
        });
    };
    KeptRoom::whenThereIs(keptFor(*corvel), asking.urgency, fetch);
    return promise;
}

RXPromise<std::string> RESTHandler::processInformationForCorvel(const CorvelRef& corvel)
{
    RXPromise<std::string> promise;
    corvel->numMSErrors = 0;
    corvel->numMSLEDs = 0;
    const Feed feed = feedOfType(*corvel, ObjectType::ManagedSystem);
    if (feed.isNA()) {
        promise.fulfillWithValue("OK");
        return promise;
    }
    int errors = 0;
    int lights = 0;
    for (const ManagedSystem& system : recordsOf<ManagedSystem>(feed)) {
        errors += system.health() == Health::Error ? 1 : 0;
        lights += system.isAttentionLEDLit() ? 1 : 0;
    }
    corvel->numMSErrors = errors;
    corvel->numMSLEDs = lights;
    promise.fulfillWithValue("OK");
    return promise;
}

std::optional<std::string> RESTHandler::fetchDataFromAtomLink(const std::string& link, const Corvel& corvel) const
{
    return lookUpLink(link, corvel).text;
}

LinkedText lookUpLink(const std::string& link, const Corvel& corvel)
{
    if (corvel.demo() == 1) {
        return {"demo placeholder", std::nullopt};
    }
    const SessionKey key = storedSessionKey(corvel);
    if (!key) {
        return {std::nullopt, missingKeyError()};
    }
    URLRequest request;
    // The link may point anywhere, and the key still goes with it: the console that gave the key may name itself, or
    // another server that speaks for it, by another address than the person typed. The request reaches only servers
    // with a known or verified certificate, and a redirect to another origin loses the key.
    request.url = link;
    request.headers.setValue("X-API-Session", *key);
    Result<URLLoad> load = sendSynchronousRequest(request);
    if (!load) {
        LODESTAR_LOG(sourceFile, "-[RESTHandler fetchDataFromAtomLink:corvel:]", "Error: {}",
                     description(load.error()));
        return {std::nullopt, load.error()};
    }
    std::string text = std::move(load.value().body);
    if (!simdjson::validate_utf8(text)) {
        return {std::nullopt, urlError(URLErrorCode::BadServerResponse)};
    }
    std::erase(text, '"');
    const int status = load.value().response.statusCode;
    return {std::move(text), status == 200 ? std::nullopt : std::optional(statusError(status))};
}

XMLElement RESTHandler::getDemoDataForContentType(std::string_view type) const
{
    const auto contents = Resources::main().contents(std::string(type), "xml");
    auto root = XMLElement::parse(contents.value_or(""));
    return root ? std::move(root).value() : XMLElement();
}

} // namespace lodestar
