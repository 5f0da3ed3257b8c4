// SPDX-License-Identifier: Apache-2.0
#include "Views/Report/ServiceReportController.h"

#include "Kit/Core/Clipboard.h"
#include "Kit/Core/FileSaver.h"
#include "Kit/Core/LineText.h"

#include <utility>

namespace lodestar
{
namespace
{

constexpr double sheetHeight = 724; // with its bar of 44
constexpr qsizetype longestSaid = 60;

/// The text as mark-up that shows it as it is, with all its blanks.
QString asMarkup(const std::string& text)
{
    return QString::fromStdString(text).toHtmlEscaped().replace(QLatin1String("  "), QLatin1String(" &nbsp;"));
}

QString markup(const ServiceReport::Line& line, const QColor& labelInk)
{
    if (line.label.empty()) {
        return asMarkup(line.value);
    }
    return QStringLiteral("<font color=\"%1\">%2:</font> %3")
        .arg(labelInk.name(), asMarkup(line.label), asMarkup(line.value));
}

} // namespace

ServiceReportController::ServiceReportController(ReportContent content, const std::shared_ptr<ViewController>& host)
    : m_content(std::move(content)), m_host(host)
{
    setTitle(tr("Service Report"));
    setScene(QUrl(QStringLiteral("qrc:/Lodestar/Views/ServiceReportScene.qml")));
}

void ServiceReportController::present(ReportContent content, const std::shared_ptr<ViewController>& host)
{
    host->presentSemiViewController(makeController<ServiceReportController>(std::move(content), host),
                                    {.pushParentBack = false, .height = sheetHeight});
}

void ServiceReportController::setMarkdown(bool markdown)
{
    if (std::exchange(m_markdown, markdown) != markdown) {
        Q_EMIT contentChanged();
    }
}

void ServiceReportController::setLeavesOutAddresses(bool leavesOut)
{
    if (std::exchange(m_leavesOutAddresses, leavesOut) != leavesOut) {
        Q_EMIT contentChanged();
    }
}

QString ServiceReportController::text() const
{
    return QString::fromStdString(m_markdown ? markdownText(report()) : plainText(report()));
}

QString ServiceReportController::heading() const
{
    return QString::fromStdString(inLines(report()).title);
}

const ServiceReport& ServiceReportController::report(bool leavesOutAddresses) const
{
    return leavesOutAddresses ? m_content.addressless : m_content.report;
}

QStringList ServiceReportController::paragraphs(const QColor& labelInk, bool leavesOutAddresses) const
{
    const ServiceReport shown = inLines(report(leavesOutAddresses));
    QStringList texts;
    if (!shown.text.empty()) {
        texts << asMarkup(shown.text);
    }
    for (const ServiceReport::Block& block : shown.blocks) {
        QStringList lines;
        for (const ServiceReport::Line& line : block) {
            lines << markup(line, labelInk);
        }
        texts << lines.join(QStringLiteral("<br>"));
    }
    return texts;
}

void ServiceReportController::copy()
{
    const QString copied = text();
    const QString said = shortened(heading(), longestSaid);
    cancel();
    Clipboard::copy(copied, said);
}

void ServiceReportController::save()
{
    // The sheet stays until there is a file. What is saved is what it showed when the place was chosen, also when it
    // was closed meanwhile.
    const auto sheet = self<ServiceReportController>();
    FileSaver::save(
        m_content.fileName + (m_markdown ? QStringLiteral(".md") : QStringLiteral(".txt")),
        [sheet] { return sheet->text().toUtf8(); }, [sheet] { sheet->cancel(); });
}

void ServiceReportController::cancel()
{
    if (const auto host = m_host.lock()) {
        host->dismissSemiModalView();
    }
}

} // namespace lodestar
