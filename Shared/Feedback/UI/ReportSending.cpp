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

/// Kept by whatever is to go on with it: the transfer, or the alert's handler.
class Sending : public std::enable_shared_from_this<Sending>
{
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
        const std::function<void()> cancel =
            sendReport(m_bundle, m_address, queue, [self](const Result<void>& outcome) {
                MainQueue::shared().async([self, outcome] { self->ended(outcome); });
            });
        // A cancelled transfer still says how it ended: it may have been too late.
        m_alert.present(QCoreApplication::translate("Reports", "Sending the report..."), {},
                        {{QCoreApplication::translate("Reports", "Cancel")}}, 0, [cancel](int) { cancel(); });
    }

private:
    void ended(const Result<void>& outcome)
    {
        if (outcome) {
            m_alert.present(QCoreApplication::translate("Reports", "Report Sent"),
                            QCoreApplication::translate("Reports", "Thank you. A copy is in the list of reports."),
                            {{QCoreApplication::translate("Reports", "OK")}}, 0,
                            [self = shared_from_this()](int) { self->m_done(); });
            return;
        }
        m_alert.present(
            QCoreApplication::translate("Reports", "The report could not be sent"),
            QCoreApplication::translate("Reports", "%1\nIt is kept in the list of reports.")
                .arg(errorText(outcome.error())),
            {{QCoreApplication::translate("Reports", "OK")}, {QCoreApplication::translate("Reports", "Try Again")}}, 0,
            [self = shared_from_this()](int index) { index == 1 ? self->start() : self->m_done(); });
    }

    const std::shared_ptr<ViewController> m_screen;
    MenuOutlet& m_alert;
    const ReportBundle m_bundle;
    const std::string m_address;
    const std::function<void()> m_done;
};

} // namespace

void sendKeptReport(std::shared_ptr<ViewController> screen, MenuOutlet& alert, ReportBundle bundle, std::string address,
                    std::function<void()> done)
{
    std::make_shared<Sending>(std::move(screen), alert, std::move(bundle), std::move(address), std::move(done))
        ->start();
}

} // namespace lodestar
