// SPDX-License-Identifier: Apache-2.0
#include "Fleet/CertificateDetails.h"

#include "Platform/Queues/OwnThread.h"
#include "Platform/URLLoading/NetworkThread.h"

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <utility>

namespace lodestar
{

namespace
{

enum class Validity { NotYet, Now, NoLonger };

Validity validityOf(const ShownCertificate& certificate)
{
    const WallTime now = std::chrono::system_clock::now();
    if (now < certificate.validFrom) {
        return Validity::NotYet;
    }
    return now > certificate.validUntil ? Validity::NoLonger : Validity::Now;
}

ShownCertificate detailsOf(const ServerCertificate& certificate)
{
    ServerCertificate::Details details = certificate.details();
    return {std::move(details.subject),
            std::move(details.issuer),
            details.selfIssued,
            details.validFrom,
            details.validUntil,
            certificate.leaf(),
            std::string(CertificateDetails::notExamined)};
}

/// Twice the largest fleet. A console that shows another certificate at every connection must not fill the memory.
constexpr std::size_t mostKnown = 10'000;
constexpr std::chrono::milliseconds period{50};
/// A refresh may be quiet for a moment, between its session checks and its feeds.
constexpr std::chrono::milliseconds quietFor{500};
/// A stalled console must not keep the network from ever being quiet.
constexpr std::chrono::seconds longestWait{10};

/// Remembers and examines.
class Examiner
{
public:
    using Examined = std::function<void(const ShownCertificate&)>;

    static Examiner& shared()
    {
        // Never destroyed: the thread still waits on the condition when the process ends.
        static Examiner* const examiner = new Examiner;
        return *examiner;
    }

    ShownCertificate of(const ServerCertificate& certificate)
    {
        const Key key(certificate.host(), certificate.leaf());
        {
            const std::lock_guard lock(m_mutex);
            const auto found = m_known.find(key);
            if (found != m_known.end()) {
                ShownCertificate shown = found->second.shown;
                if (found->second.validity != validityOf(shown)) {
                    shown.objection = CertificateDetails::notExamined;
                }
                return shown;
            }
        }
        ShownCertificate shown = detailsOf(certificate);
        remember(key, shown);
        return shown;
    }

    void add(const ServerCertificate& certificate, Examined examined)
    {
        {
            const std::lock_guard lock(m_mutex);
            m_waiting.emplace_back(certificate, std::move(examined));
            if (!std::exchange(m_hasThread, true)) {
                std::thread([this] { run(); }).detach();
            }
        }
        m_added.notify_one();
    }

private:
    using Key = std::pair<std::string, ServerTrust::Fingerprint>; ///< the authorities' answer depends on the host, too
    struct Known {
        ShownCertificate shown;
        Validity validity;
    };

    void remember(const Key& key, const ShownCertificate& shown)
    {
        const std::lock_guard lock(m_mutex);
        if (m_known.size() >= mostKnown) {
            m_known.clear();
        }
        m_known.insert_or_assign(key, Known{shown, validityOf(shown)});
    }

    void run()
    {
        const OwnThread thread("lodestar-trust");
        OwnThread::takeLowPriority();
        for (;;) {
            {
                std::unique_lock lock(m_mutex);
                m_added.wait(lock, [this] { return !m_waiting.empty(); });
            }
            waitForQuiet();
            while (const auto next = takeNext()) {
                next->second(examined(next->first));
            }
        }
    }

    std::optional<std::pair<ServerCertificate, Examined>> takeNext()
    {
        const std::lock_guard lock(m_mutex);
        if (m_waiting.empty()) {
            return std::nullopt;
        }
        std::optional next(std::move(m_waiting.front()));
        m_waiting.pop_front();
        return next;
    }

    ShownCertificate examined(const ServerCertificate& certificate)
    {
        ShownCertificate shown = of(certificate);
        if (shown.objection == CertificateDetails::notExamined) {
            shown.objection = certificate.systemObjection();
            remember({certificate.host(), certificate.leaf()}, shown);
        }
        return shown;
    }

    static void waitForQuiet()
    {
        std::chrono::milliseconds quiet{};
        for (std::chrono::milliseconds waited{}; waited < longestWait && quiet < quietFor; waited += period) {
            std::this_thread::sleep_for(period);
            quiet = NetworkThread::isQuiet() ? quiet + period : std::chrono::milliseconds(0);
        }
    }

    std::mutex m_mutex;
    std::condition_variable m_added;
    std::map<Key, Known> m_known;
    std::deque<std::pair<ServerCertificate, Examined>> m_waiting;
    bool m_hasThread = false;
};

} // namespace

ShownCertificate CertificateDetails::of(const ServerCertificate& certificate)
{
    return Examiner::shared().of(certificate);
}

void CertificateDetails::examine(const ServerCertificate& certificate,
                                 std::function<void(const ShownCertificate&)> examined)
{
    Examiner::shared().add(certificate, std::move(examined));
}

} // namespace lodestar
