// SPDX-License-Identifier: Apache-2.0
#include "Feedback/UI/FeedbackViewController.h"

#include "Feedback/LogTail.h"
#include "Feedback/Redaction.h"
#include "Feedback/UI/ReportListViewController.h"
#include "Feedback/UI/ReportSending.h"
#include "Feedback/UI/ReportViewController.h"
#include "Feedback/VireoLogger.h"
#include "Kit/Core/ErrorText.h"
#include "Kit/Core/NavigationController.h"
#include "Platform/Queues/DispatchQueue.h"
#include "Platform/Queues/MainQueue.h"

#include <QBuffer>

#include <utility>

namespace lodestar
{
namespace
{

constexpr std::size_t logBytes = std::size_t{64} << 10;

std::string asPng(const QImage& image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    return image.save(&buffer, "PNG") ? bytes.toStdString() : std::string();
}

} // namespace

FeedbackViewController::FeedbackViewController(std::shared_ptr<const FeedbackSetup> setup, QImage picture, Lock lock,
                                               std::function<void()> close)
    : m_setup(std::move(setup)), m_lock(lock), m_close(std::move(close)), m_sketch(new Sketch(std::move(picture), this))
{
    setTitle(tr("Feedback"));
    setScene(QUrl(QStringLiteral("qrc:/Lodestar/Feedback/FeedbackScene.qml")));
}

void FeedbackViewController::setBusy(bool busy)
{
    m_busy = busy;
    Q_EMIT busyChanged();
}

void FeedbackViewController::cancel()
{
    if (m_busy) {
        return; // the running work ends by itself and closes the screen
    }
    if (m_noteView->text().trimmed().isEmpty() && !m_sketch->canUndo()) {
        m_close();
        return;
    }
    m_alert->present(tr("Discard this feedback?"), {}, {{tr("Keep Editing")}, {tr("Discard"), true}}, 0,
                     [this](int index) {
                         if (index == 1) {
                             m_close();
                         }
                     });
}

/// Builds the bundle. Reading and packing happen off the main thread; data that only the main thread may touch is
/// copied first.
void FeedbackViewController::assemble(std::function<void(ReportBundle)> done)
{
    setBusy(true);
    ReportBundle bundle;
    static_cast<Report&>(bundle) = m_setup->facts();
    bundle.note = m_noteView->text().left(longestNote).toStdString();
    auto secrets = m_setup->secrets ? m_setup->secrets() : std::vector<std::string>();
    DispatchQueue::globalBackground().async([screen = self<FeedbackViewController>(), done = std::move(done),
                                             secrets = std::move(secrets), picture = m_sketch->composed(),
                                             bundle = std::move(bundle)]() mutable {
        if (!screen->isLocked()) {
            VireoLogger::flush();
            bundle.log = redacted(logTail(screen->m_setup->logFolder, logBytes), secrets);
        }
        bundle.note = redacted(bundle.note, secrets);
        bundle.picture = asPng(picture);
        MainQueue::shared().async(
            [screen = std::move(screen), done = std::move(done), bundle = std::move(bundle)]() mutable {
                screen->setBusy(false);
                done(std::move(bundle));
            });
    });
}

void FeedbackViewController::submit()
{
    if (m_busy) {
        return;
    }
    if (sends()) {
        showText();
        return;
    }
    assemble([this](ReportBundle bundle) {
        keep(std::move(bundle), [this](const ReportBundle&) {
            m_alert->present(tr("Report Saved"),
                             isLocked() ? QString() : tr("It is in the list of reports on this device."), {{tr("OK")}},
                             0, [this](int) { m_close(); });
        });
    });
}

void FeedbackViewController::showText()
{
    if (m_busy) {
        return;
    }
    assemble([this](ReportBundle bundle) {
        const QString text = QString::fromStdString(sentText(bundle));
        auto review = makeController<ReportViewController>(sends() ? tr("What Is Sent") : tr("What Is Saved"), text);
        if (sends()) {
            review->setAction(tr("Send"), [this, bundle = std::move(bundle)] {
                navigationController()->popViewController(Animated::Yes);
                keep(bundle, [this](const ReportBundle& kept) {
                    sendKeptReport(self<FeedbackViewController>(), *m_alert, kept, m_setup->address, m_close);
                });
            });
        }
        navigationController()->pushViewController(review, Animated::Yes);
    });
}

/// Saves the report before anything is sent: whatever happens to the transfer, the report is not lost.
void FeedbackViewController::keep(ReportBundle bundle, std::function<void(ReportBundle)> done)
{
    setBusy(true);
    DispatchQueue::globalBackground().async(
        [screen = self<FeedbackViewController>(), bundle = std::move(bundle), done = std::move(done)]() mutable {
            auto saved = std::make_shared<Result<std::string>>(screen->m_setup->store.save(bundle));
            MainQueue::shared().async(
                [screen = std::move(screen), saved, bundle = std::move(bundle), done = std::move(done)]() mutable {
                    screen->setBusy(false);
                    if (!*saved) {
                        // The screen stays, with everything in it.
                        screen->m_alert->present(tr("The report could not be saved"), errorText(saved->error()),
                                                 {{tr("OK")}}, 0, {});
                        return;
                    }
                    bundle.identifier = saved->value();
                    done(std::move(bundle));
                });
        });
}

void FeedbackViewController::showReports()
{
    if (!isLocked()) {
        navigationController()->pushViewController(makeController<ReportListViewController>(m_setup), Animated::Yes);
    }
}

} // namespace lodestar
