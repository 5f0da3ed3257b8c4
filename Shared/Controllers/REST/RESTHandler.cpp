// SPDX-License-Identifier: Apache-2.0
#include "Controllers/REST/RESTHandler.h"

#include "Application/Model/StoreStack.h"
#include "Controllers/REST/CorvelRequest.h"
#include "Controllers/REST/RESTSupport.h"
#include "Feedback/VireoLogger.h"
#include "Inventory/Record.h"
#include "Platform/Queues/MainQueue.h"
#include "Platform/URLLoading/ServerTrust.h"
#include "Platform/URLLoading/URLLoading.h"
#include "Platform/UserDefaults.h"

#include <algorithm>
#include <utility>

namespace lodestar
{

namespace
{

constexpr std::string_view sourceFile = "Shared/Controllers/REST/RESTHandler";
constexpr std::string_view loginMethod = "-[RESTHandler login:checkToken:]";

constexpr std::string_view logonNamespace = "http://www.ornis.example/xmlns/systems/web/mc/2012_10/";
constexpr std::string_view k2Namespace = "http://www.w3.org/XML/1998/namespace/k2";
constexpr std::string_view webContent = "application/vnd.ornis.varnex.web+xml";
constexpr std::chrono::seconds logonTimeout{10};
/// Six feeds follow a logon. One of them reuses the logon's connection, so one of the six connections is spare, for
/// what a person asks of the console in the meantime.
constexpr int connectionsToCome = 6;

URLRequest withUrgency(URLRequest request, Urgency urgency)
{
    request.urgency = urgency;
    return request;
}

/// The logon or session check of one record. The constructor reads everything it needs of the record, on the thread
/// that asked for the key: the record may be edited while the requests run.
class Logon : public std::enable_shared_from_this<Logon>
{
public:
    Logon(const RESTHandler& handler, CorvelRef corvel, RXPromise<SessionKey> promise, const Asking& asking)
        : m_queue(handler.queue()),
          m_corvel(std::move(corvel)),
          m_name(shownText(m_corvel->name())),
          m_address(m_corvel->address()),
          m_logonRequest(withUrgency(handler.loginRequestForCorvel(*m_corvel), asking.urgency)),
          m_promise(std::move(promise)),
          m_log(asking.log),
          m_feedsToCome(expectRequests(m_logonRequest.url, connectionsToCome))
    {
    }

    /// Tries the key. When the console no longer accepts it, logs on again.
    void checkSession(URLRequest checkRequest, std::string key)
    {
        checkRequest.urgency = m_logonRequest.urgency;
        const ExchangeEntry entry(m_log, Exchange::Kind::SessionCheck, {}, checkRequest);
        std::make_shared<CorvelRequest>()->sendRequest(
            std::move(checkRequest), m_queue,
            [self = shared_from_this(), key = std::move(key), entry](const URLResponse* response,
                                                                     const std::string* data, const Error* error) {
                entry.close(response != nullptr ? response->statusCode : 0, data != nullptr ? data->size() : 0,
                            error != nullptr ? std::optional(*error) : std::nullopt);
                if (error == nullptr && response->statusCode == 200) {
                    LODESTAR_LOG(sourceFile, loginMethod, "Session is valid for Corvel: {}", self->m_name);
                    self->m_promise.fulfillWithValue(key);
                    return;
                }
                LODESTAR_LOG(sourceFile, loginMethod, "Session is no longer valid for Corvel: {}", self->m_name);
                self->logOnPlainly();
            });
    }

    void logOnAcceptingAnyServer()
    {
        URLRequest request = m_logonRequest;
        const ExchangeEntry entry(m_log, Exchange::Kind::Logon, {}, request);
        std::make_shared<CorvelRequest>()->sendRequest(
            std::move(request), m_queue,
            [self = shared_from_this(), entry](const URLResponse* response, std::string* data, const Error* error) {
                self->answered(error != nullptr ? Result<URLLoad>(*error) : URLLoad{*response, std::move(*data)},
                               entry);
            });
    }

private:
    /// Logs on with a plain request, under the usual rules of trust. The first logon accepts any server; the difference
    /// is meant: the session check just made has shown which certificate the console has.
    void logOnPlainly()
    {
        URLRequest request = m_logonRequest;
        const ExchangeEntry entry(m_log, Exchange::Kind::Logon, {}, request);
        sendAsynchronousRequest(
            std::move(request), m_queue,
            [self = shared_from_this(), entry](const Result<URLLoad>& load) { self->answered(load, entry); });
    }

    void answered(const Result<URLLoad>& load, const ExchangeEntry& entry)
    {
        if (!load || load.value().response.statusCode != 200) {
            entry.close(load);
            logFailure(causeOf(load));
            if (load) {
                m_promise.rejectWithReason(logonRefusal(load.value().response.statusCode));
            } else {
                m_promise.rejectWithReason(load.error());
            }
            return;
        }
        const Result<SessionKey> key = sessionKeyOfAnswer(load.value().body);
        if (!key) {
            entry.close(load, key.error());
            logFailure(description(key.error()));
            m_promise.rejectWithReason(key.error());
            return;
        }
        entry.close(load, key.value() ? std::nullopt : std::optional(missingKeyError()));
        if (!key.value()) {
            logFailure("status 200 without a session key");
        }
        keep(key.value());
        m_promise.fulfillWithValue(key.value());
    }

    void logFailure(const std::string& cause) const
    {
        LODESTAR_LOG(sourceFile, loginMethod, "Logon failed for Corvel: {}: {}", m_name, cause);
    }

    /// Stores the key, unless the console has been deleted: a deleted console's entry must not come back. The deletion
    /// may also fall between the check and the write, so the main thread, where deletions happen, checks once more.
    void keep(const SessionKey& key) const
    {
        if (!m_address) {
            return;
        }
        if (!key) {
            UserDefaults::standard().removeObjectForKey(*m_address);
            return;
        }
        if (m_corvel->isDeleted()) {
            return;
        }
        UserDefaults::standard().setString(*key, *m_address);
        MainQueue::shared().async([corvel = m_corvel, address = *m_address, key = *key] {
            if (corvel->isDeleted() && UserDefaults::standard().stringForKey(address) == key) {
                UserDefaults::standard().removeObjectForKey(address);
            }
        });
    }

    const OperationQueue m_queue;
    const CorvelRef m_corvel;
    const std::string m_name;
    const std::optional<std::string> m_address;
    const URLRequest m_logonRequest;
    const RXPromise<SessionKey> m_promise;
    const std::shared_ptr<ExchangeLog> m_log;
    const std::shared_ptr<void> m_feedsToCome;
};

} // namespace

RESTHandler& RESTHandler::sharedInstance()
{
    // Never destroyed: completions may still run while the process ends.
    static RESTHandler* const handler = new RESTHandler;
    return *handler;
}

RESTHandler::RESTHandler() : m_snapshot(std::make_shared<const std::vector<CorvelRef>>())
{
    ServerTrust::shared().setRefusalHandler([](const std::string& host, int port, const std::string& reason) {
        LODESTAR_LOG("Shared/Platform/URLLoading/ServerTrust", "-[ServerTrust refuse:port:reason:]",
                     "Refused the certificate of {}:{}: {}", host, port, reason);
    });
    setCorvelList(fetchCorvels());
}

void RESTHandler::setCorvelList(std::vector<CorvelRef> list)
{
    m_corvelList = std::move(list);
    auto snapshot = std::make_shared<const std::vector<CorvelRef>>(m_corvelList);
    const std::lock_guard lock(m_snapshotMutex);
    m_snapshot.swap(snapshot);
}

void RESTHandler::addCorvel(CorvelRef corvel)
{
    auto list = m_corvelList;
    list.push_back(std::move(corvel));
    setCorvelList(std::move(list));
}

void RESTHandler::removeCorvelAtIndex(std::size_t index)
{
    if (index < m_corvelList.size()) {
        auto list = m_corvelList;
        list.erase(list.begin() + static_cast<std::ptrdiff_t>(index));
        setCorvelList(std::move(list));
    }
}

std::shared_ptr<const std::vector<CorvelRef>> RESTHandler::corvelListSnapshot() const
{
    const std::lock_guard lock(m_snapshotMutex);
    return m_snapshot;
}

std::vector<CorvelRef> RESTHandler::fetchCorvels() const
{
    std::vector<CorvelRef> records;
    if (const auto fetched = StoreStack::shared().managedObjectContext().fetchAll(Corvel::entityName)) {
        for (const auto& object : fetched.value()) {
            if (auto corvel = std::dynamic_pointer_cast<Corvel>(object)) {
                records.push_back(std::move(corvel));
            }
        }
    }
    return records;
}

URLRequest RESTHandler::loginRequestForCorvel(const Corvel& corvel) const
{
    URLRequest request;
    request.url = "https://" + shownText(corvel.address()) + ":12443/rest/api/web/Logon";
    request.method = "PUT";
    request.timeout = logonTimeout;
    request.headers.setValue("Accept", webContent);
    request.headers.setValue("Content-Type", webContent);
    // Name and password are not escaped: consoles read them literally, and escaping would change them.
    request.body = fmt::format("<LogonRequest xmlns=\"{}\" xmlns:ns2=\"{}\" schemaVersion=\"V1_0\">"
                               "<Metadata><Atom/></Metadata>"
                               "<UserID kxe=\"false\" kb=\"CUR\">{}</UserID>"
                               "<Password kxe=\"false\" kb=\"CUR\">{}</Password>"
                               "</LogonRequest>",
                               logonNamespace, k2Namespace, shownText(corvel.username()), shownText(corvel.password()));
    return request;
}

URLRequest RESTHandler::sessionValidRequestWithToken(const std::string& token, const Corvel& corvel) const
{
    URLRequest request;
    request.url = consoleURL(corvel, "uom", ObjectType::ManagementConsole);
    request.headers.setValue("X-API-Session", token);
    request.headers.addValue("Accept", "application/atom+xml");
    request.headers.addValue("Accept", "application/vnd.ornis.varnex.uom+xml");
    return request;
}

RXPromise<SessionKey> RESTHandler::login(const CorvelRef& corvel, CheckToken checkToken, const Asking& asking)
{
    RXPromise<SessionKey> promise;
    if (corvel->demo() == 1) {
        promise.fulfillWithValue("OK");
        return promise;
    }
    const std::string name = shownText(corvel->name());
    const SessionKey stored = storedSessionKey(*corvel);
    if (checkToken == CheckToken::No) {
        LODESTAR_LOG(sourceFile, loginMethod, "Corvel: {}, did not use firstOpen case", name);
        promise.fulfillWithValue(stored);
        return promise;
    }
    LODESTAR_LOG(sourceFile, loginMethod, "Corvel: {}, just used firstOpen case", name);
    const auto logon = std::make_shared<Logon>(*this, corvel, promise, asking);
    if (stored) {
        LODESTAR_LOG(sourceFile, loginMethod, "{}'s Corvel's saved token is not nil", name);
        logon->checkSession(sessionValidRequestWithToken(*stored, *corvel), *stored);
    } else {
        LODESTAR_LOG(sourceFile, loginMethod, "{}'s Corvel's saved token is nil", name);
        logon->logOnAcceptingAnyServer();
    }
    return promise;
}

} // namespace lodestar
