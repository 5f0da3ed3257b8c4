// SPDX-License-Identifier: Apache-2.0
#include "Controllers/REST/Exchange.h"

#include "Platform/URLLoading/URLError.h"

#include <utility>

namespace lodestar
{

void ExchangeLog::add(Exchange exchange)
{
    const std::lock_guard lock(m_mutex);
    m_exchanges.push_back(std::move(exchange));
}

std::vector<Exchange> ExchangeLog::take()
{
    const std::lock_guard lock(m_mutex);
    return std::exchange(m_exchanges, {});
}

ExchangeEntry::ExchangeEntry(std::shared_ptr<ExchangeLog> log, Exchange::Kind kind, std::string_view type,
                             URLRequest& request)
    : m_log(std::move(log))
{
    if (m_log == nullptr) {
        return;
    }
    m_exchange = std::make_shared<Exchange>();
    m_exchange->kind = kind;
    m_exchange->type = type;
    // The transport tells the record before the completion, which closes the entry.
    request.ended = [exchange = m_exchange](const TransferRecord& record) { exchange->transfer = record; };
}

void ExchangeEntry::close(const Result<URLLoad>& load, std::optional<Error> misread, std::size_t entries) const
{
    if (!load) {
        close(0, 0, load.error());
    } else {
        close(load.value().response.statusCode, load.value().body.size(), std::move(misread), entries);
    }
}

void ExchangeEntry::close(int status, std::size_t bytes, std::optional<Error> error, std::size_t entries) const
{
    if (m_log == nullptr) {
        return;
    }
    Exchange exchange = std::move(*m_exchange);
    exchange.status = status != 0 ? status : exchange.transfer.status;
    exchange.bytes = bytes;
    exchange.entries = entries;
    exchange.error = std::move(error);
    if (!exchange.error && exchange.transfer.redirectedTooOften) {
        exchange.error = urlError(URLErrorCode::TooManyRedirects);
    } else if (!exchange.error && status != 200) {
        exchange.error = statusError(status);
    }
    // Certificates keep their chains; of a fleet's feeds only those matter that were refused.
    if (exchange.kind == Exchange::Kind::Feed && !exchange.error) {
        exchange.transfer.certificate.reset();
    }
    m_log->add(std::move(exchange));
}

Error statusError(int status)
{
    return {std::string(statusErrorDomain), status, wordsForLogonStatus(status), {}, nullptr};
}

Error missingKeyError()
{
    return {std::string(sessionKeyErrorDomain), 0, {}, "the logon was accepted without a session key", nullptr};
}

} // namespace lodestar
