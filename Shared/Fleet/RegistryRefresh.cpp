// SPDX-License-Identifier: Apache-2.0
#include "Controllers/REST/RESTHandler.h"
#include "Fleet/AttemptReading.h"
#include "Fleet/CertificateDetails.h"
#include "Fleet/History.h"
#include "Fleet/Readings.h"
#include "Fleet/Registry.h"

#include <algorithm>
#include <utility>

namespace lodestar
{

namespace
{

/// One refresh of a console on its way to a reading.
class Refresh : public std::enable_shared_from_this<Refresh>
{
public:
    explicit Refresh(CorvelRef corvel) : m_corvel(std::move(corvel))
    {
        m_attempt.address = m_corvel->address().value_or("");
        m_attempt.began = std::chrono::system_clock::now();
        Readings::shared().begin(m_corvel);
    }

    RXPromise<std::string> fetch(Urgency urgency)
    {
        const Asking asking(urgency, m_log);
        return RESTHandler::sharedInstance()
            .login(m_corvel, CheckToken::Yes, asking)
            .then([self = shared_from_this(), asking](const SessionKey& key) {
                self->m_corvel->isOnline = true;
                return RESTHandler::sharedInstance().fetchAllDataForCorvel(self->m_corvel, key, asking);
            })
            .then([self = shared_from_this()](const std::shared_ptr<const FeedDictionary>& feeds) {
                self->m_attempt.feeds = feeds;
                self->m_corvel->setRestData(feeds);
                return RESTHandler::sharedInstance().processInformationForCorvel(self->m_corvel);
            });
    }

    void judge(std::optional<Error> rejection)
    {
        m_attempt.ended = std::chrono::system_clock::now();
        m_attempt.exchanges = m_log->take();
        m_attempt.rejection = std::move(rejection);
        m_reading = readingOf(m_attempt);
    }

    /// On the main thread, where records are deleted: what was forgotten with a record must not come back. A record
    /// with another address by now is another console.
    void publish()
    {
        if (m_corvel->isDeleted()) {
            Readings::shared().forget(*m_corvel);
            return;
        }
        if (m_corvel->address().value_or("") != m_attempt.address) {
            return;
        }
        Readings::shared().end(m_corvel, std::move(m_reading));
        for (const Exchange& exchange : m_attempt.exchanges) {
            if (exchange.transfer.certificate) {
                examine(*exchange.transfer.certificate);
            }
        }
        if (isRegistered(m_corvel)) {
            History::shared().add(m_corvel, Readings::shared().of(*m_corvel), m_attempt.feeds);
        }
    }

private:
    void examine(const ServerCertificate& certificate) const
    {
        if (CertificateDetails::of(certificate).objection == CertificateDetails::notExamined) {
            CertificateDetails::examine(certificate,
                                        [corvel = std::weak_ptr<Corvel>(m_corvel)](const ShownCertificate& examined) {
                                            if (const CorvelRef console = corvel.lock()) {
                                                Readings::shared().didExamine(*console, examined);
                                            }
                                        });
        }
    }

    const CorvelRef m_corvel;
    const std::shared_ptr<ExchangeLog> m_log = std::make_shared<ExchangeLog>();
    Attempt m_attempt;
    Reading m_reading;
};

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
    const auto refresh = std::make_shared<Refresh>(corvel);
    return refresh->fetch(urgency)
        .then(
            [refresh](const std::string& done) {
                refresh->judge(std::nullopt);
                return Result<std::string>(done);
            },
            [refresh](const Error& error) {
                refresh->judge(error);
                return Result<std::string>(error);
            })
        .thenOnMain(
            [refresh](const std::string& done) {
                refresh->publish();
                return Result<std::string>(done);
            },
            [refresh](const Error& error) {
                refresh->publish();
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
