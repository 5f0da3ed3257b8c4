// SPDX-License-Identifier: Apache-2.0
#include "Views/Report/ReportContent.h"

#include "Controllers/REST/RESTHandler.h"
#include "Fleet/FleetEvents.h"
#include "Fleet/Readings.h"
#include "Inventory/ConsoleInformation.h"
#include "Inventory/ManagedSystem.h"
#include "Inventory/ServiceableEvent.h"
#include "Views/Common/FeedTimeStamp.h"

#include <QCoreApplication>
#include <QDateTime>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <sstream>

namespace lodestar
{
namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(lodestar::ReportContent)
};

using Field = std::optional<std::string>;
using Line = ServiceReport::Line;
using Block = ServiceReport::Block;

enum class Addresses { Shown, LeftOut };

Line line(const QString& label, std::string value)
{
    return {.label = label.toStdString(), .value = std::move(value)};
}

Line line(const QString& label, const QString& value)
{
    return line(label, value.toStdString());
}

QString moreTimes(const QString& duplicates)
{
    bool isNumber = false;
    const int count = duplicates.toInt(&isNumber);
    return isNumber && count >= 0 ? Words::tr("%Ln more times", nullptr, count) : duplicates;
}

QString notKnown()
{
    return Words::tr("not known");
}

/// Empty counts as not told.
std::string known(const Field& field)
{
    return field && !field->empty() ? *field : notKnown().toStdString();
}

/// The fields that there are, one after the other.
std::string series(const std::vector<Field>& fields, const char* between = ", ")
{
    std::string text;
    for (const Field& field : fields) {
        if (field && !field->empty()) {
            text += (text.empty() ? "" : between) + *field;
        }
    }
    return text;
}

std::string typeAndModel(const MachineIdentity& machine)
{
    return series({machine.machineType(), machine.model()}, "-");
}

std::string timeText(const Field& seconds)
{
    const auto time = wallTimeOf(reportedSeconds(seconds));
    return time ? reportTime(*time).toStdString() : known(seconds);
}

QString offsetText(int seconds)
{
    const int minutes = std::abs(seconds) / 60;
    QString text = QStringLiteral("UTC") + (seconds < 0 ? u'-' : u'+') + QString::number(minutes / 60);
    return minutes % 60 == 0 ? text : text + QStringLiteral(":%1").arg(minutes % 60, 2, 10, QLatin1Char('0'));
}

/// The system that failed, as its own feed tells of it: found by its serial number, without one by its name.
ManagedSystem failingSystem(const EventNode& node, const CorvelRef& corvel)
{
    if (!corvel) {
        return {};
    }
    const std::vector<ManagedSystem> systems = recordsOf<ManagedSystem>(feedOfType(*corvel, ObjectType::ManagedSystem));
    const Field serial = node.identity().serialNumber();
    const auto found = std::ranges::find_if(systems, [&](const ManagedSystem& system) {
        return serial ? system.identity().serialNumber() == serial
                      : node.hostName() && system.name() == node.hostName();
    });
    return found != systems.end() ? *found : ManagedSystem();
}

Block eventFacts(const ServiceableEvent& event)
{
    Block facts{line(Words::tr("Status"), known(series({event.problemState(), event.approvalState()}))),
                line(Words::tr("Severity"), known(event.severity()))};
    const Field callsHome = event.callHomeEnabled();
    facts.push_back(line(Words::tr("Call home"), event.callsHome()      ? Words::tr("intended")
                                                 : callsHome == "false" ? Words::tr("not intended")
                                                                        : QString::fromStdString(known(callsHome))));
    std::string code = known(event.referenceCode());
    if (const Field extension = event.referenceCodeExtension(); extension && !extension->empty()) {
        //: After a reference code; %1 its extension
        code += Words::tr(", extension %1").arg(QString::fromStdString(*extension)).toStdString();
    }
    facts.push_back(line(Words::tr("Reference code"), code));
    if (const Field fix = event.firmwareFix(); fix && !fix->empty()) {
        facts.push_back(line(Words::tr("Firmware fix"), *fix));
    }
    facts.push_back(line(Words::tr("First reported"), timeText(event.firstReported())));
    facts.push_back(line(Words::tr("Last reported"), timeText(event.lastReported())));
    if (const Field duplicates = event.duplicateCount(); duplicates && !duplicates->empty() && duplicates != "0") {
        facts.push_back(line(Words::tr("Reported"), moreTimes(QString::fromStdString(*duplicates))));
    }
    return facts;
}

Block partFacts(const ServiceableEvent& event)
{
    Block facts;
    int number = 0;
    for (const FieldReplaceableUnit& unit : event.units()) {
        facts.push_back(
            line(Words::tr("Part %1").arg(++number), known(series({unit.partNumber(), unit.unitDescription()}))));
        facts.push_back(line(Words::tr("Location"), known(unit.locationCode())));
    }
    return facts;
}

void addAddress(Block& facts, const Field& address, Addresses addresses)
{
    if (addresses == Addresses::Shown && address && !address->empty()) {
        facts.push_back(line(Words::tr("Address"), *address));
    }
}

Block consoleFacts(const CorvelRef& corvel, Addresses addresses)
{
    if (!corvel) {
        return {line(Words::tr("Console"), Words::tr("not known"))};
    }
    const auto information = ConsoleInformation::of(feedOfType(*corvel, ObjectType::ManagementConsole));
    Block facts{line(Words::tr("Console"), known(series({corvel->name(), corvel->version()}))),
                line(Words::tr("Serial"), known(information.identity().serialNumber()))};
    addAddress(facts, corvel->address(), addresses);
    return facts;
}

Block closing(const ReportSource& source)
{
    const QString application = QStringLiteral("Lodestar ") + QCoreApplication::applicationVersion();
    return {line(Words::tr("Read"), source.readAt ? reportTime(*source.readAt) : Words::tr("not known")),
            //: %1 this application with its version
            line(QString(), Words::tr("Made by %1").arg(application.trimmed()))};
}

ServiceReport eventReport(const ServiceableEvent& event, const ReportSource& source, Addresses addresses)
{
    const EventNode failing = event.failingSystem();
    const ManagedSystem system = failingSystem(failing, source.corvel);
    const MachineIdentity machine = failing.identity() ? failing.identity() : system.identity();
    const Field name = failing.hostName() ? failing.hostName() : system.name();
    Block systemFacts{line(Words::tr("System"), known(series({name, system.state()}))),
                      line(Words::tr("Type and model"), known(typeAndModel(machine))),
                      line(Words::tr("Serial"), known(machine.serialNumber()))};
    addAddress(systemFacts, system.primaryIPAddress(), addresses);
    ServiceReport report{
        //: %1 the event's number
        .title =
            Words::tr("Serviceable event #%1").arg(QString::fromStdString(known(event.problemNumber()))).toStdString(),
        .text = event.shortDescription().value_or(""),
        .blocks = {eventFacts(event), std::move(systemFacts)}};
    if (Block parts = partFacts(event); !parts.empty()) {
        report.blocks.push_back(std::move(parts));
    }
    report.blocks.push_back(consoleFacts(source.corvel, addresses));
    report.blocks.push_back(closing(source));
    return report;
}

ServiceReport systemReport(const ManagedSystem& system, const ReportSource& source, Addresses addresses)
{
    const Field memory = system.availableMemory();
    Block machine{line(Words::tr("Type and model"), known(typeAndModel(system.identity()))),
                  line(Words::tr("Serial"), known(system.identity().serialNumber()))};
    addAddress(machine, system.primaryIPAddress(), addresses);
    return {//: %1 a managed system
            .title = Words::tr("System %1").arg(QString::fromStdString(known(system.name()))).toStdString(),
            .text = {},
            .blocks = {{line(Words::tr("Status"), known(system.state())),
                        line(Words::tr("Reference code"), known(system.referenceCode())),
                        line(Words::tr("Attention LED On"), known(system.attentionLEDState()))},
                       std::move(machine),
                       {line(Words::tr("Available Processing Units"), known(system.availableProcessingUnits())),
                        line(Words::tr("Available Memory"), memory ? *memory + " MB" : known(memory))},
                       consoleFacts(source.corvel, addresses),
                       closing(source)}};
}

/// Host names within a domain count as addresses, also among other words; plain ones are names, as is "Dr.". No domain
/// ends with a digit, as the number of a version does.
void addHostName(std::vector<std::string>& addresses, const Field& name)
{
    std::istringstream words(name.value_or(""));
    for (std::string word; words >> word;) {
        if (word.find('.') < word.size() - 1 && std::isdigit(static_cast<unsigned char>(word.back())) == 0) {
            addresses.push_back(word);
        }
    }
}

/// Without the lines of addresses, and with a mark where a name or a text holds one.
ServiceReport withMarks(ServiceReport report, std::vector<std::string> addresses, const CorvelRef& corvel)
{
    if (corvel) {
        addresses.push_back(corvel->address().value_or(""));
        addHostName(addresses, corvel->name());
    }
    return withoutAddresses(std::move(report), addresses, Words::tr("[address left out]").toStdString());
}

} // namespace

ReportSource reportSource(const XMLElement& object, std::string_view type)
{
    for (const CorvelRef& corvel : RESTHandler::sharedInstance().corvelList()) {
        const std::vector<XMLElement> entries = feedOfType(*corvel, type).entries();
        if (std::ranges::any_of(entries, [&](const XMLElement& entry) { return contentOf(entry, type) == object; })) {
            const auto reading = Readings::shared().of(*corvel);
            const auto* const feed = std::ranges::find(reading->feeds, type, &FeedReading::type);
            return {corvel, feed != reading->feeds.end() ? feed->readAt : std::nullopt};
        }
    }
    return {};
}

ReportContent reportOf(const ServiceableEvent& event, const ReportSource& source)
{
    std::vector<std::string> addresses;
    addHostName(addresses, event.reportingConsole().hostName());
    addHostName(addresses, event.analyzingConsole().hostName());
    addHostName(addresses, event.failingSystem().hostName());
    const ManagedSystem system = failingSystem(event.failingSystem(), source.corvel);
    addHostName(addresses, system.name());
    addresses.push_back(system.primaryIPAddress().value_or(""));
    return {.report = eventReport(event, source, Addresses::Shown),
            .addressless =
                withMarks(eventReport(event, source, Addresses::LeftOut), std::move(addresses), source.corvel),
            .fileName = QStringLiteral("event-") + QString::fromStdString(event.problemNumber().value_or(""))};
}

ReportContent reportOf(const ManagedSystem& system, const ReportSource& source)
{
    std::vector<std::string> addresses{system.primaryIPAddress().value_or("")};
    addHostName(addresses, system.name());
    // Whoever gets the file sees its name, too.
    const ServiceReport name =
        withMarks({.title = system.name().value_or(""), .text = {}, .blocks = {}}, addresses, source.corvel);
    return {.report = systemReport(system, source, Addresses::Shown),
            .addressless =
                withMarks(systemReport(system, source, Addresses::LeftOut), std::move(addresses), source.corvel),
            .fileName = QStringLiteral("system-") + QString::fromStdString(name.title)};
}

QString reportTime(WallTime time)
{
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(time.time_since_epoch()).count();
    const QDateTime local = QDateTime::fromSecsSinceEpoch(seconds);
    const QDateTime world = local.toUTC();
    const auto text = [](const QDateTime& moment) {
        return mediumDateShortTime(WallClock{moment.date(), moment.time()});
    };
    if (local.offsetFromUtc() == 0) {
        return text(world) + QStringLiteral(" UTC");
    }
    return QStringLiteral("%1 %2 (%3 UTC)")
        .arg(text(local), offsetText(local.offsetFromUtc()),
             local.date() == world.date() ? shortTime(world.time()) : text(world));
}

} // namespace lodestar
