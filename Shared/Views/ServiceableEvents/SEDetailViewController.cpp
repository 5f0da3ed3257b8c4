// SPDX-License-Identifier: Apache-2.0
#include "Views/ServiceableEvents/SEDetailViewController.h"

#include "Inventory/ServiceableEvent.h"
#include "Views/Common/CellText.h"
#include "Views/Common/ScreenLog.h"
#include "Views/Report/ServiceReportController.h"

#include <QDateTime>
#include <QLocale>

#include <cctype>
#include <charconv>
#include <cmath>
#include <utility>

namespace lodestar
{
namespace
{

constexpr ScreenLog screenLog("Shared/Views/ServiceableEvents/SEDetailViewController");

/// The decimal number at the start of the text; 0 for none.
double decimalNumber(std::string_view text)
{
    while (!text.empty() && std::isspace(static_cast<unsigned char>(text.front())) != 0) {
        text.remove_prefix(1);
    }
    if (text.starts_with('+')) {
        text.remove_prefix(1);
    }
    double number = 0;
    // Words such as "inf" are not decimal numbers.
    if (text.find_first_of("0123456789.") <= 1) {
        std::from_chars(text.data(), text.data() + text.size(), number);
    }
    return number;
}

/// Seconds since 1970 as "hh:MM dd/MM": the hour of a twelve-hour clock, then the month in the place of the minutes,
/// then day and month. That is meant. Empty for a time outside the calendar.
QString eventTime(const std::optional<std::string>& timestamp)
{
    constexpr double lastSecond = 9e15; // in milliseconds still within 64 bits
    const double seconds = std::floor(decimalNumber(timestamp.value_or("")));
    if (std::abs(seconds) > lastSecond) {
        return {};
    }
    const QDateTime date = QDateTime::fromSecsSinceEpoch(static_cast<qint64>(seconds));
    if (!date.isValid()) {
        return {};
    }
    const QLocale locale;
    const QTime hour((date.time().hour() + 11) % 12 + 1, 0);
    return locale.toString(hour, QStringLiteral("hh:")) + locale.toString(date.date(), QStringLiteral("MM dd/MM"));
}

} // namespace

SEDetailViewController::SEDetailViewController() : DetailViewController(u'~')
{
    // Only the first unit's section has a title; the sections of further units have none.
    setSectionTitles({tr("Main Information"), tr("Associated FRUs")});
}

void SEDetailViewController::viewDidLoad()
{
    screenLog.write(23, "viewDidLoad", "SEDetailViewController instantiation");
    setTitle(tr("Event Details"));
    m_source = reportSource(rootXML(), ServiceableEvent::type);
    populateEventDetails();
    setBackTitle(QStringLiteral(""));
}

void SEDetailViewController::openReport()
{
    ServiceReportController::present(reportOf(ServiceableEvent(rootXML()), m_source), shared_from_this());
}

void SEDetailViewController::populateEventDetails()
{
    std::vector<DetailSection> sections = {mainInformation()};
    for (const FieldReplaceableUnit& unit : ServiceableEvent(rootXML()).units()) {
        sections.push_back(unitInformation(unit));
    }
    setTableData(std::move(sections));
}

DetailSection SEDetailViewController::mainInformation() const
{
    // On this screen an absent text is an empty value, not "(null)".
    const ServiceableEvent event(rootXML());
    return {
        row(tr("Problem Number"), textOf(event.problemNumber())),
        row(tr("Call Home Intended"), textOf(event.callHomeEnabled())),
        row(tr("Prob Mgmt Hardware Record"), textOf(event.hardwareRecord())),
        row(tr("Approval State"), textOf(event.approvalState())),
        row(tr("Reference Code"), textOf(event.referenceCode())),
        row(tr("Reference Code Extension"), textOf(event.referenceCodeExtension())),
        row(tr("System Reference Code"), textOf(event.systemReferenceCode())),
        row(tr("Status"), textOf(event.problemState())),
        row(tr("Firmware Fix"), textOf(event.firmwareFix())),
        row(tr("First Reported Time"), eventTime(event.firstReported())),
        row(tr("Last Reported Time"), eventTime(event.lastReported())),
        row(tr("Data Event Time"), eventTime(event.primaryTimestamp())),
        row(tr("Reporting Console Name"), textOf(event.reportingConsole().hostName())),
        row(tr("Reporting MTMS"), textOf(event.reportingConsole().model())),
        row(tr("Failing MTMS"), textOf(event.failingSystem().model())),
        row(tr("Event Text"), textOf(event.shortDescription())),
        row(tr("Event Severity"), textOf(event.severity())),
        row(tr("Notification Type"), textOf(event.notificationType())),
        row(tr("Duplicate Count"), textOf(event.duplicateCount())),
        row(tr("Mgmt Console Name"), textOf(event.analyzingConsole().hostName())),
        row(tr("Mgmt Console MTMS"), textOf(event.analyzingConsole().model())),
    };
}

DetailSection SEDetailViewController::unitInformation(const FieldReplaceableUnit& unit) const
{
    return {
        row(tr("Part Number"), textOf(unit.partNumber())),
        row(tr("Class"), textOf(unit.unitClass())),
        row(tr("Description"), textOf(unit.unitDescription())),
        row(tr("Location Code"), textOf(unit.locationCode())),
        row(tr("Previously Replaced"), textOf(unit.previouslyReplaced())),
        row(tr("Replaced Timestamp"), textOf(unit.replacedTimestamp())),
        row(tr("Replacement Group"), textOf(unit.replacementGroup())),
    };
}

} // namespace lodestar
