// SPDX-License-Identifier: Apache-2.0
#include "Fleet/WatchLeftOut.h"

#include "Fleet/TextFields.h"
#include "Fleet/WatchSurroundings.h"
#include "Platform/NotificationCenter.h"

#include <algorithm>
#include <utility>

namespace lodestar
{
namespace
{

constexpr auto settingName = "watch.leftOut"; ///< addresses, one a line

bool sawCertificateChange(const Reading& reading)
{
    const auto isChange = [](const std::optional<Error>& error) {
        return error && reasonOf(*error) == ReadingReason::CertificateChanged;
    };
    return isChange(reading.error) || std::ranges::any_of(reading.feeds, [&](const FeedReading& feed) {
               // A look-up asks whatever server the link names.
               return feed.failedLookUps == 0 && isChange(feed.error);
           });
}

} // namespace

void WatchLeftOut::read()
{
    for (const auto& fields : linesOfFields(m_stage->setting(settingName).value_or(""))) {
        m_addresses.insert(fields.front());
    }
}

std::vector<CorvelRef> WatchLeftOut::consoles() const
{
    std::vector<CorvelRef> corvels = m_stage->consoles();
    std::erase_if(corvels, [this](const CorvelRef& corvel) { return !contains(corvel->address().value_or("")); });
    return corvels;
}

void WatchLeftOut::notice()
{
    std::set<std::string> addresses = m_addresses;
    for (const CorvelRef& corvel : m_stage->consoles()) {
        if (sawCertificateChange(*m_stage->readingOf(*corvel))) {
            addresses.insert(corvel->address().value_or(""));
        }
    }
    set(std::move(addresses));
}

void WatchLeftOut::didRefreshByHand(const Corvel& corvel)
{
    const auto reading = m_stage->readingOf(corvel);
    const bool answered =
        reading->outcome == Reading::Outcome::Complete || reading->outcome == Reading::Outcome::Partial;
    if (answered && !sawCertificateChange(*reading)) {
        std::set<std::string> addresses = m_addresses;
        addresses.erase(corvel.address().value_or(""));
        set(std::move(addresses));
    }
}

void WatchLeftOut::keepOnly(const std::set<std::string>& addresses)
{
    std::set<std::string> kept = m_addresses;
    std::erase_if(kept, [&addresses](const std::string& address) { return !addresses.contains(address); });
    set(std::move(kept));
}

void WatchLeftOut::set(std::set<std::string> addresses)
{
    if (addresses == m_addresses) {
        return;
    }
    m_addresses = std::move(addresses);
    std::string lines;
    for (const std::string& address : m_addresses) {
        lines += lineOfFields({address});
    }
    m_stage->setSetting(settingName, lines.empty() ? std::nullopt : std::optional(lines));
    NotificationCenter::defaultCenter().postNotification("WatchDidChange");
}

} // namespace lodestar
