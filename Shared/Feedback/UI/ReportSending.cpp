// SPDX-License-Identifier: Apache-2.0
#include "Feedback/UI/ReportSending.h"

#include "Feedback/ReportSender.h"
#include "Kit/Core/ErrorText.h"
#include "Platform/Queues/MainQueue.h"

#include <QCoreApplication>

#include <utility>

namespace lodestar
{
namespace
{

/// One report being sent. The transfer or the alert's handler keeps it alive.
class Sending : public std::enable_shared_from_this<Sending>
{
    Q_DECLARE_TR_FUNCTIONS(Reports)

public:
    Sending(std::shared_ptr<ViewController> screen, MenuOutlet& alert, ReportBundle bundle, std::string address,
            std::function<void()> done)
        : m_screen(std::move(screen)),
          m_alert(alert),
          m_bundle(std::move(bundle)),
          m_address(std::move(address)),
          m_done(std::move(done))
    {
    }

    void start()
    {
        static const OperationQueue queue;
        const auto self = shared_from_this();
        m_isUnderWay = true;
        const std::function<void()> cancel = sendReport(
            m_bundle, m_address, queue,
            [self](const Result<void>& outcome) {
                MainQueue::shared().async([self, outcome] { self->ended(outcome); });
            },
            [self](int percent) { MainQueue::shared().async([self, percent] { self->sent(percent); }); });
        // After a cancel the transfer still reports its outcome: the cancel may have come too late.
        m_alert.present(tr("Sending the report..."), percentText(0), {{tr("Cancel")}}, 0, [self, cancel](int) {
            self->m_isUnderWay = false;
            cancel();
        });
    }

private:
    static QString percentText(int percent)
    {
        // The system accepts a small report at once, however slowly it is sent from there.
        return percent == 100 ? tr("Waiting for the answer...") : tr("%1 %").arg(percent);
    }

    void sent(int percent)
    {
        if (m_isUnderWay) {
            m_alert.setMessage(percentText(percent));
        }
    }

    void ended(const Result<void>& outcome)
    {
        m_isUnderWay = false;
        if (outcome) {
            m_alert.present(tr("Report Sent"), tr("Thank you. A copy is in the list of reports."), {{tr("OK")}}, 0,
                            [self = shared_from_this()](int) { self->m_done(); });
            return;
        }
        m_alert.present(tr("The report could not be sent"),
                        tr("%1\nIt is kept in the list of reports.").arg(errorText(outcome.error())),
                        {{tr("OK")}, {tr("Try Again")}}, 0,
                        [self = shared_from_this()](int index) { index == 1 ? self->start() : self->m_done(); });
    }

    const std::shared_ptr<ViewController> m_screen;
    MenuOutlet& m_alert;
    const ReportBundle m_bundle;
    const std::string m_address;
    const std::function<void()> m_done;
    bool m_isUnderWay = false; ///< true while the alert shows the transfer's progress
};

} // namespace

void sendKeptReport(std::shared_ptr<ViewController> screen, MenuOutlet& alert, ReportBundle bundle, std::string address,
                    std::function<void()> done)
{
    std::make_shared<Sending>(std::move(screen), alert, std::move(bundle), std::move(address), std::move(done))
        ->start();
}

} // namespace lodestar
