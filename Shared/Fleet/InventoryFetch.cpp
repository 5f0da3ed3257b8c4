// SPDX-License-Identifier: Apache-2.0
#include "Fleet/InventoryFetch.h"

#include "Controllers/REST/RESTHandler.h"
#include "Fleet/AttemptReading.h"
#include "Fleet/CertificateDetails.h"
#include "Fleet/History.h"
#include "Fleet/Readings.h"

#include <utility>

namespace lodestar
{
namespace
{

void examine(const ServerCertificate& certificate, const CorvelRef& corvel)
{
    if (CertificateDetails::of(certificate).objection == CertificateDetails::notExamined) {
        CertificateDetails::examine(certificate,
                                    [corvel = std::weak_ptr<Corvel>(corvel)](const ShownCertificate& examined) {
                                        if (const CorvelRef console = corvel.lock()) {
                                            Readings::shared().didExamine(*console, examined);
                                        }
                                    });
    }
}

} // namespace

InventoryFetch::InventoryFetch(CorvelRef corvel) : m_corvel(std::move(corvel))
{
    m_attempt.address = m_corvel->address().value_or("");
    m_attempt.began = std::chrono::system_clock::now();
}

RXPromise<std::string> InventoryFetch::start(Urgency urgency, std::function<void()> loggedOn,
                                             std::chrono::seconds feedTimeout)
{
    return fetch(Asking(urgency, m_log, feedTimeout), std::move(loggedOn))
        .then(
            [self = shared_from_this()](const std::string& done) {
                self->judge(std::nullopt);
                return Result<std::string>(done);
            },
            [self = shared_from_this()](const Error& error) {
                self->judge(error);
                return Result<std::string>(error);
            });
}

RXPromise<std::string> InventoryFetch::fetch(const Asking& asking, std::function<void()> loggedOn)
{
    return RESTHandler::sharedInstance()
        .login(m_corvel, CheckToken::Yes, asking)
        .then([self = shared_from_this(), asking, loggedOn = std::move(loggedOn)](const SessionKey& key) {
            if (self->m_isStopped) {
                RXPromise<std::shared_ptr<const FeedDictionary>> stopped;
                stopped.rejectWithReason("stopped");
                return stopped;
            }
            self->m_sessionKey = key;
            self->m_corvel->isOnline = true;
            if (loggedOn) {
                loggedOn();
            }
            return RESTHandler::sharedInstance().fetchAllDataForCorvel(self->m_corvel, key, asking);
        })
        .then([self = shared_from_this()](const std::shared_ptr<const FeedDictionary>& feeds) {
            self->m_attempt.feeds = feeds;
            self->m_corvel->setRestData(feeds);
            return RESTHandler::sharedInstance().processInformationForCorvel(self->m_corvel);
        });
}

void InventoryFetch::judge(std::optional<Error> rejection)
{
    m_attempt.ended = std::chrono::system_clock::now();
    m_attempt.exchanges = m_log->take();
    m_attempt.rejection = std::move(rejection);
    m_reading = readingOf(m_attempt);
}

void InventoryFetch::publishAs(const CorvelRef& corvel) const
{
    Readings::shared().end(corvel, m_reading);
    for (const Exchange& exchange : m_attempt.exchanges) {
        if (exchange.transfer.certificate) {
            examine(*exchange.transfer.certificate, corvel);
        }
    }
}

void InventoryFetch::addToHistoryAs(const CorvelRef& corvel) const
{
    History::shared().add(corvel, Readings::shared().of(*corvel), m_attempt.feeds);
}

} // namespace lodestar
