// SPDX-License-Identifier: Apache-2.0
#include "Feedback/UI/FeedbackHost.h"

#include "Feedback/CrashCollector.h"
#include "Feedback/UI/FeedbackViewController.h"
#include "Feedback/UI/ReportViewController.h"
#include "Kit/Core/NavigationController.h"
#include "Platform/Queues/DispatchQueue.h"
#include "Platform/Queues/MainQueue.h"

#include <QPointer>

#include <utility>

namespace lodestar
{

void FeedbackHost::setUp(FeedbackSetup setup)
{
    m_setup = std::make_shared<const FeedbackSetup>(std::move(setup));
}

void FeedbackHost::need()
{
    if (!m_needed) {
        m_needed = true;
        Q_EMIT neededChanged();
    }
}

void FeedbackHost::setScreen(std::shared_ptr<ViewController> screen)
{
    // Keeps the old screen alive for this call: that screen may have made the call.
    const auto keep = std::exchange(m_screen, std::move(screen));
    Q_EMIT screenChanged();
}

void FeedbackHost::present(QImage picture)
{
    if (!m_setup || m_screen) {
        return;
    }
    if (m_locked && m_begunOver) {
        setScreen(std::exchange(m_begunOver, nullptr));
        return;
    }
    using Lock = FeedbackViewController::Lock;
    const auto close = [host = QPointer<FeedbackHost>(this)] {
        if (host) {
            host->setScreen(host->m_locked ? nullptr : host->takeFromAside());
        }
    };
    auto feedback = makeController<FeedbackViewController>(m_setup, std::move(picture),
                                                           m_locked ? Lock::Locked : Lock::Open, close);
    need();
    setScreen(makeController<NavigationController>(std::move(feedback)));
}

std::shared_ptr<ViewController> FeedbackHost::takeFromAside()
{
    return std::exchange(m_begunOver ? m_begunOver : m_begunBefore, nullptr);
}

void FeedbackHost::setLocked(bool locked)
{
    const bool wasLocked = std::exchange(m_locked, locked);
    if (locked) {
        m_alert->dismiss();
        if (m_screen) {
            (wasLocked ? m_begunOver : m_begunBefore) = m_screen;
            setScreen(nullptr);
        }
    } else if (wasLocked) {
        if (!m_screen) {
            setScreen(takeFromAside());
        }
        askAboutCrashes();
    }
}

void FeedbackHost::forget()
{
    m_crashes.clear();
    m_begunBefore.reset();
    m_begunOver.reset();
    m_alert->dismiss();
    if (m_screen) {
        setScreen(nullptr);
    }
}

void FeedbackHost::offerCrashes()
{
    if (!m_setup) {
        return;
    }
    CrashSources sources = {m_setup->crashFolder, m_setup->logFolder,
                            m_setup->secrets ? m_setup->secrets() : std::vector<std::string>()};
    DispatchQueue::globalBackground().async(
        [host = QPointer<FeedbackHost>(this), setup = m_setup, sources = std::move(sources)] {
            setup->store.sweep();
            collectCrashes(sources, setup->store);
            MainQueue::shared().async([host, reports = setup->store.unanswered()] {
                if (host) {
                    host->m_crashes = reports;
                    host->askAboutCrashes();
                }
            });
        });
}

void FeedbackHost::askAboutCrashes()
{
    if (m_locked || m_crashes.empty()) {
        return;
    }
    need();
    const auto count = static_cast<int>(m_crashes.size());
    // A screen that a person has begun is not replaced, so the question then offers no sending; the list of reports can
    // send, too.
    const bool sends = !m_setup->address.empty() && m_screen == nullptr;
    std::vector<MenuChoice> choices = {{tr("Keep")}, {tr("Delete"), true}};
    if (sends) {
        choices.insert(choices.begin(), {tr("Send")});
    }
    const int keep = sends ? 1 : 0;
    m_alert->present(
        tr("Lodestar ended unexpectedly"),
        tr("%Ln reports were made on this device. They hold no passwords and are sent nowhere by themselves.", nullptr,
           count),
        choices, keep, [this, keep](int index) {
            if (index < keep && m_screen == nullptr) {
                reviewFirstCrash();
            } else {
                answerAboutCrashes(index <= keep);
            }
        });
}

void FeedbackHost::answerAboutCrashes(bool kept)
{
    for (const Report& crash : std::exchange(m_crashes, {})) {
        if (kept || !m_setup->store.remove(crash.identifier)) {
            m_setup->store.keep(crash.identifier);
        }
    }
}

/// Shows a report's texts, since nothing is sent before they have been on the screen. Asks about the next report after
/// that.
void FeedbackHost::reviewFirstCrash()
{
    const std::string identifier = m_crashes.front().identifier;
    m_crashes.erase(m_crashes.begin());
    m_setup->store.keep(identifier);
    const Result<ReportBundle> bundle = m_setup->store.read(identifier);
    if (!bundle) {
        askAboutCrashes(); // the report was deleted in the meantime
        return;
    }
    auto review = makeController<ReportViewController>(m_setup, bundle.value());
    review->setClose([host = QPointer<FeedbackHost>(this)] {
        if (host) {
            host->setScreen(nullptr);
            host->askAboutCrashes();
        }
    });
    setScreen(makeController<NavigationController>(std::move(review)));
}

} // namespace lodestar
