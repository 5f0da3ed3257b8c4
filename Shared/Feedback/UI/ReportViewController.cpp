// SPDX-License-Identifier: Apache-2.0
#include "Feedback/UI/ReportViewController.h"

#include "Feedback/UI/ReportSending.h"
#include "Kit/Core/ErrorText.h"
#include "Kit/Core/NavigationController.h"

#include <QCoreApplication>

#include <utility>

namespace lodestar
{
namespace
{

QUrl reportScene()
{
    return QUrl(QStringLiteral("qrc:/Lodestar/Feedback/ReportScene.qml"));
}

} // namespace

QString reportKindName(Report::Kind kind)
{
    return kind == Report::Kind::Crash ? QCoreApplication::translate("Reports", "Crash")
                                       : QCoreApplication::translate("Reports", "Feedback");
}

ReportViewController::ReportViewController(const QString& title, const QString& text) : m_lines(text.split('\n'))
{
    setTitle(title);
    setScene(reportScene());
}

ReportViewController::ReportViewController(std::shared_ptr<const FeedbackSetup> setup, const ReportBundle& bundle)
    : m_setup(std::move(setup)),
      m_identifier(bundle.identifier),
      m_lines(QString::fromStdString(sentText(bundle)).split('\n'))
{
    setTitle(reportKindName(bundle.kind));
    setScene(reportScene());
    const QImage image = QImage::fromData(QByteArray::fromStdString(bundle.picture), "PNG");
    if (!image.isNull()) {
        m_picture = new Sketch(image, this);
    }
    if (!m_setup->address.empty()) {
        offerSending(bundle);
    }
}

/// Offers to send the report, again after each time, but only once at a time.
void ReportViewController::offerSending(const ReportBundle& bundle)
{
    setAction(tr("Send"), [this, bundle] {
        sendKeptReport(self<ReportViewController>(), *m_alert, bundle, m_setup->address, [this, bundle] {
            offerSending(bundle);
            if (m_close) {
                m_close();
            }
        });
    });
}

void ReportViewController::setAction(const QString& title, std::function<void()> action)
{
    m_actionTitle = title;
    m_action = std::move(action);
}

void ReportViewController::leave()
{
    const auto keep = shared_from_this();
    if (m_close) {
        m_close();
    } else {
        goBack();
    }
}

void ReportViewController::act()
{
    // The action may remove this screen.
    const auto keep = shared_from_this();
    if (m_action) {
        const std::function<void()> action = std::exchange(m_action, nullptr);
        action();
    }
}

void ReportViewController::exportReport()
{
    const Result<std::string> path = m_setup->store.exportTo(m_identifier, m_setup->exportFolder);
    if (path) {
        m_alert->present(tr("Report Exported"), QString::fromStdString(path.value()), {{tr("OK")}}, 0, {});
    } else {
        m_alert->present(tr("The report could not be exported"), errorText(path.error()), {{tr("OK")}}, 0, {});
    }
}

void ReportViewController::deleteReport()
{
    m_alert->present(tr("Delete this report?"), {}, {{tr("Cancel")}, {tr("Delete"), true}}, 0, [this](int index) {
        if (index != 1) {
            return;
        }
        const Result<void> removed = m_setup->store.remove(m_identifier);
        if (removed) {
            leave();
        } else {
            m_alert->present(tr("The report could not be deleted"), errorText(removed.error()), {{tr("OK")}}, 0, {});
        }
    });
}

} // namespace lodestar
