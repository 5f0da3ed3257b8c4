// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/ViewController.h"
#include "Views/Report/ReportContent.h"

#include <QColor>
#include <QStringList>

namespace lodestar
{

/// The sheet Service Report: shows the exact text, which is then copied or saved. Main thread.
class ServiceReportController : public lodestar::ViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the detail screens")
    Q_PROPERTY(bool markdown READ isMarkdown WRITE setMarkdown NOTIFY contentChanged)
    Q_PROPERTY(bool leavesOutAddresses READ leavesOutAddresses WRITE setLeavesOutAddresses NOTIFY contentChanged)
    Q_PROPERTY(QString text READ text NOTIFY contentChanged)
    Q_PROPERTY(QString heading READ heading NOTIFY contentChanged)

public:
    /// `host` is the screen that presents the sheet.
    ServiceReportController(ReportContent content, const std::shared_ptr<ViewController>& host);
    /// Presents the sheet over the screen.
    static void present(ReportContent content, const std::shared_ptr<ViewController>& host);

    bool isMarkdown() const { return m_markdown; }
    void setMarkdown(bool markdown);
    bool leavesOutAddresses() const { return m_leavesOutAddresses; }
    void setLeavesOutAddresses(bool leavesOut);

    /// The text as it is copied and saved.
    QString text() const;
    /// The plain text's first line, and the mark-up of its other parts with this ink for labels. `leavesOutAddresses`
    /// is the sheet's own; a binding names it to be evaluated anew.
    QString heading() const;
    Q_INVOKABLE QStringList paragraphs(const QColor& labelInk, bool leavesOutAddresses) const;

    Q_INVOKABLE void copy();
    Q_INVOKABLE void save();
    Q_INVOKABLE void cancel();

Q_SIGNALS:
    void contentChanged();

private:
    const ServiceReport& report(bool leavesOutAddresses) const;
    const ServiceReport& report() const { return report(m_leavesOutAddresses); }

    const ReportContent m_content;
    const std::weak_ptr<ViewController> m_host;
    bool m_markdown = false;
    bool m_leavesOutAddresses = true;
};

} // namespace lodestar
