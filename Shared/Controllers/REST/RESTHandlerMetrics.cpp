// SPDX-License-Identifier: Apache-2.0
#include "Controllers/REST/RESTHandler.h"
#include "Controllers/REST/RESTSupport.h"
#include "Feedback/VireoLogger.h"
#include "Inventory/Metrics/MetricsReduction.h"
#include "Inventory/Record.h"
#include "Platform/Resources.h"
#include "Platform/URLLoading/URLLoading.h"

#include <utility>

namespace lodestar
{

namespace
{

/// `line` is part of a message's identity in the log: never change the given numbers.
template <typename... Args>
void log(int line, fmt::format_string<Args...> format, Args&&... args)
{
    VireoLogger::logWithLevel(2, 0, line, "Shared/Controllers/REST/RESTHandler",
                              "-[RESTHandler fetchPCMDataForManagedSystem:corvel:key:]", callStackReturnAddresses(),
                              format, std::forward<Args>(args)...);
}

Result<MetricsDocument> demoMetrics()
{
    return MetricsDocument::parse(Resources::main().contents("ManagedSystem", "json").value_or(""));
}

/// The two requests of one call: the feed, then the document that the feed's first entry links to. The constructor
/// reads what it needs of the record, on the thread that asked.
class MetricsFetch : public std::enable_shared_from_this<MetricsFetch>
{
public:
    MetricsFetch(OperationQueue queue, const Corvel& corvel, SessionKey key, RXPromise<MetricsDocument> promise)
        : m_queue(std::move(queue)),
          m_name(shownText(corvel.name())),
          m_key(std::move(key)),
          m_promise(std::move(promise))
    {
    }

    void start(const std::string& feedURL) const
    {
        URLRequest request = requestFor(feedURL);
        request.headers.addValue("Accept", "application/atom+xml");
        request.headers.addValue("Accept", "application/vnd.ornis.varnex.uom+xml");
        log(261, "Request: <URLRequest> {{ URL: {} }}", request.url);
        sendAsynchronousRequest(std::move(request), m_queue,
                                [self = shared_from_this()](const Result<URLLoad>& load) { self->receivedFeed(load); });
    }

private:
    URLRequest requestFor(std::string url) const
    {
        URLRequest request;
        request.url = std::move(url);
        if (m_key) {
            request.headers.setValue("X-API-Session", *m_key);
        }
        return request;
    }

    void receivedFeed(const Result<URLLoad>& load) const
    {
        if (!load || load.value().response.statusCode != 200) {
            log(__LINE__, "Metrics failed: {}: {}", m_name, causeOf(load));
            if (load) {
                m_promise.rejectWithReason();
            } else {
                m_promise.rejectWithReason(load.error());
            }
            return;
        }
        const Result<XMLElement> feed = XMLElement::parse(load.value().body);
        log(272, "RESTHandler: fetching PCM data for {}", m_name);
        // The key goes wherever the feed points, as in `fetchDataFromAtomLink`. A feed without a link gives an empty
        // address, which fails like any unreachable one.
        const auto link = feed ? Feed(feed.value()).firstLink() : std::nullopt;
        sendAsynchronousRequest(
            requestFor(link.value_or("")), m_queue,
            [self = shared_from_this()](const Result<URLLoad>& second) { self->receivedDocument(second); });
    }

    /// Reads whatever body came and ignores the answer's status and error (they are only logged). That is meant. A
    /// failed request reads as an empty body.
    void receivedDocument(const Result<URLLoad>& load) const
    {
        if (!load || load.value().response.statusCode != 200) {
            log(__LINE__, "Metrics document failed: {}: {}", m_name, causeOf(load));
        }
        const Result<MetricsDocument> parsed = MetricsDocument::parse(load ? load.value().body : std::string());
        log(283, "RESTHandler: fetching PCM error message for {}", m_name);
        const MetricsDocument document = parsed ? parsed.value() : MetricsDocument();
        if (!wasProcessed(document)) {
            m_promise.rejectWithReason(std::string(notProcessed));
            return;
        }
        m_promise.fulfillWithValue(document);
    }

    const OperationQueue m_queue;
    const std::string m_name;
    const SessionKey m_key;
    const RXPromise<MetricsDocument> m_promise;
};

} // namespace

RXPromise<MetricsDocument> RESTHandler::fetchPCMDataForManagedSystem(const std::optional<std::string>& systemID,
                                                                     const CorvelRef& corvel, const SessionKey& key)
{
    RXPromise<MetricsDocument> promise;
    if (corvel->demo() == 1) {
        const Result<MetricsDocument> document = demoMetrics();
        if (document) {
            promise.fulfillWithValue(document.value());
        } else {
            promise.rejectWithReason(document.error());
        }
        return promise;
    }
    std::make_shared<MetricsFetch>(m_queue, *corvel, key, promise)
        ->start(fmt::format("https://{}:12443/rest/api/pcm/ManagedSystem/{}/ProcessedMetrics?NoOfSamples=240",
                            shownText(corvel->address()), shownText(systemID)));
    return promise;
}

} // namespace lodestar
