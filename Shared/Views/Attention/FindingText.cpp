// SPDX-License-Identifier: Apache-2.0
#include "Views/Attention/FindingText.h"

#include "Kit/Core/Sentence.h"
#include "Views/Common/AgeText.h"
#include "Views/Common/CellText.h"
#include "Views/Common/FeedName.h"
#include "Views/Common/ReasonText.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <chrono>

namespace lodestar
{
namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(lodestar::FindingText)
};

QString count(std::size_t number)
{
    return QLocale().toString(static_cast<qulonglong>(number));
}

QString quoted(const std::string& text)
{
    return isolated(rowText(text));
}

QString withPart(const QString& sentence, const QString& part)
{
    //: A sentence and a further part of it: "System in error" and "X417-2208"
    return part.isEmpty() ? sentence : Words::tr("%1, %2").arg(sentence, part);
}

const Finding& firstOf(const Findings& findings, const FindingRow& row)
{
    return findings.list[row.findings.front()];
}

QString moment(WallTime then, WallTime now)
{
    return now - then < std::chrono::hours(24) ? AgeText::clock(then) : AgeText::moment(then, now);
}

QString stopped(const Finding& finding, bool folded, WallTime now)
{
    const QString until = finding.ranUntil ? moment(*finding.ranUntil, now) : QString();
    if (folded) {
        //: %1 a time of day
        return Words::tr("Stopped, ran until %1").arg(until);
    }
    //: %1 a time of day
    return finding.subject == FindingSubject::IOServer ? Words::tr("IO server stopped, ran until %1").arg(until)
                                                       : Words::tr("Partition stopped, ran until %1").arg(until);
}

QString ofEvent(const Finding& event)
{
    QString sentence = isolated(QStringLiteral("#") + rowText(event.eventNumber));
    if (event.eventNumber.empty()) {
        sentence.clear();
    }
    QStringList parts{sentence, quoted(event.referenceCode)};
    if (event.callsHome) {
        parts << Words::tr("call home");
    }
    if (event.duplicates > 0) {
        // Further reports, and the first one.
        parts << Words::tr("%Ln times", nullptr, event.duplicates + 1);
    }
    return Sentence::joined(parts);
}

QString oneOf(const Finding& finding, WallTime now)
{
    const QString code = quoted(finding.referenceCode);
    switch (finding.rank) {
    case FindingRank::SystemErrorLit:
        return withPart(FindingText::isIncomplete(finding) ? Words::tr("System incomplete")
                                                           : Words::tr("System in error"),
                        Words::tr("LED on"));
    case FindingRank::SystemError:
        return withPart(
            FindingText::isIncomplete(finding) ? Words::tr("System incomplete") : Words::tr("System in error"), code);
    case FindingRank::IOServerError:
        return withPart(Words::tr("IO server in error"), code);
    case FindingRank::PartitionError:
        return withPart(Words::tr("Partition in error"), code);
    case FindingRank::ConsoleOffline:
        //: %1 why, as in "connection refused"
        return finding.error ? Words::tr("Offline, %1").arg(reasonText(*finding.error)) : Words::tr("Offline");
    case FindingRank::FeedsMissing:
        return feedsNotRead(finding.missing);
    case FindingRank::Stopped:
        return stopped(finding, false, now);
    case FindingRank::LEDLit:
        //: %1 the console's word for a system's state
        return Words::tr("LED on, system %1").arg(quoted(finding.state));
    case FindingRank::GroupError:
        return Words::tr("%1 of %Ln resources in error", nullptr, static_cast<int>(finding.members))
            .arg(count(finding.membersInError));
    case FindingRank::OpenEvent:
        return ofEvent(finding);
    }
    return {};
}

QString several(FindingSubject subject, std::size_t number)
{
    const int n = static_cast<int>(number);
    switch (subject) {
    case FindingSubject::Console:
        return Words::tr("%Ln consoles", nullptr, n);
    case FindingSubject::System:
        return Words::tr("%Ln systems", nullptr, n);
    case FindingSubject::IOServer:
        return Words::tr("%Ln IO servers", nullptr, n);
    case FindingSubject::Partition:
        return Words::tr("%Ln partitions", nullptr, n);
    case FindingSubject::Group:
        return Words::tr("%Ln groups", nullptr, n);
    case FindingSubject::Event:
        return Words::tr("%Ln events", nullptr, n);
    }
    return {};
}

/// What all folded findings of a row say.
QString folded(const Findings& findings, const FindingRow& row, WallTime now)
{
    const Finding& first = firstOf(findings, row);
    const auto agree = [&](auto field) {
        return std::ranges::all_of(row.findings,
                                   [&](std::uint32_t each) { return findings.list[each].*field == first.*field; });
    };
    if (first.rank == FindingRank::Stopped) {
        return stopped(first, true, now);
    }
    const bool ofSystem = first.rank == FindingRank::PartitionError || first.rank == FindingRank::IOServerError;
    if (ofSystem && !first.system.empty() && agree(&Finding::system) && agree(&Finding::console)) {
        //: %1 the name of a system
        return Words::tr("In error on %1").arg(quoted(first.system));
    }
    return oneOf(first, now);
}

/// The words of a system in error whose LED is lit, as they are read aloud.
QString spokenSentence(const Findings& findings, const FindingRow& row, WallTime now)
{
    const Finding& first = firstOf(findings, row);
    if (row.isFolded()) {
        return folded(findings, row, now);
    }
    if (first.rank == FindingRank::SystemErrorLit) {
        return spoken({FindingText::isIncomplete(first) ? Words::tr("system incomplete") : Words::tr("system in error"),
                       Words::tr("attention LED on")});
    }
    if (first.rank == FindingRank::LEDLit) {
        //: %1 the console's word for a system's state
        return spoken({Words::tr("attention LED on"), Words::tr("system %1").arg(quoted(first.state))});
    }
    return oneOf(first, now);
}

} // namespace

bool FindingText::isIncomplete(const Finding& system)
{
    return system.isIncomplete();
}

QString FindingText::needAttention(std::size_t number)
{
    return Words::tr("%Ln things need attention", nullptr, static_cast<int>(number));
}

QString FindingText::openEvents(const Findings& findings)
{
    return findings.openEvents == 0 ? QString()
                                    : Words::tr("%Ln events are open", nullptr, static_cast<int>(findings.openEvents));
}

QString FindingText::summary(const Findings& findings)
{
    return withPart(findings.needAttention == 0 ? Words::tr("No faults") : needAttention(findings.needAttention),
                    openEvents(findings));
}

QString FindingText::completeness(const FleetReading& fleet, WallTime now)
{
    QString answered = Words::tr("%1 of %Ln consoles answered in full", nullptr, static_cast<int>(fleet.consoles))
                           .arg(count(fleet.answeredInFull));
    if (!fleet.from) {
        return answered;
    }
    const bool isOld = AgeText::isOld(*fleet.from, now);
    return withPart(answered, isOld ? AgeText::readAgo(*fleet.from, now) : AgeText::of(*fleet.from, now));
}

QString FindingText::updating(const FleetReading& fleet)
{
    return Words::tr("updating... %1 of %2")
        .arg(count(fleet.underWay - std::min(fleet.updating, fleet.underWay)), count(fleet.underWay));
}

QString FindingText::didNotAnswer(const FleetReading& fleet)
{
    return fleet.consoles == 1 ? Words::tr("The console did not answer. What it would report is not known.")
                               : Words::tr("%1 of %Ln consoles did not answer. What they would report is not known.",
                                           nullptr, static_cast<int>(fleet.consoles))
                                     .arg(count(fleet.offline));
}

QString FindingText::beforeOffline(std::size_t number)
{
    return number == 0 ? QString()
                       : Words::tr("%Ln things needed attention there before.", nullptr, static_cast<int>(number));
}

QString FindingText::notShown(std::size_t number)
{
    return number == 0 ? QString() : Words::tr("%Ln more things are not shown.", nullptr, static_cast<int>(number));
}

QString FindingText::band(FindingBand band)
{
    switch (band) {
    case FindingBand::Errors:
        return Words::tr("Errors");
    case FindingBand::NotAnswering:
        return Words::tr("Not answering");
    case FindingBand::Warnings:
        return Words::tr("Warnings");
    case FindingBand::OpenEvents:
        return Words::tr("Open events");
    }
    return {};
}

QString FindingText::subject(FindingSubject subject)
{
    switch (subject) {
    case FindingSubject::Console:
        return Words::tr("Consoles");
    case FindingSubject::System:
        return Words::tr("Systems");
    case FindingSubject::IOServer:
        return Words::tr("IO servers");
    case FindingSubject::Partition:
        return Words::tr("Partitions");
    case FindingSubject::Group:
        return Words::tr("Groups");
    case FindingSubject::Event:
        return Words::tr("Events");
    }
    return {};
}

QString FindingText::subjectWithin(FindingSubject subject)
{
    switch (subject) {
    case FindingSubject::Console:
        return Words::tr("consoles");
    case FindingSubject::System:
        return Words::tr("systems");
    case FindingSubject::IOServer:
        return Words::tr("IO servers", "within a sentence");
    case FindingSubject::Partition:
        return Words::tr("partitions");
    case FindingSubject::Group:
        return Words::tr("groups");
    case FindingSubject::Event:
        return Words::tr("events");
    }
    return {};
}

QString FindingText::filtered(const FindingFilter& filter, const std::vector<ConsoleSnapshot>& consoles)
{
    QStringList parts;
    for (const FindingSubject kind : filter.kinds) {
        parts << (parts.isEmpty() ? subject(kind) : subjectWithin(kind));
    }
    return Sentence::joined(parts << chosenConsoles(filter, consoles));
}

QString FindingText::chosenConsoles(const FindingFilter& filter, const std::vector<ConsoleSnapshot>& consoles)
{
    QStringList names;
    for (const ConsoleSnapshot& console : consoles) {
        if (filter.consoles.contains(console.corvel.get())) {
            names << quoted(console.name);
        }
    }
    return joinedList(names);
}

QString FindingText::name(const Findings& findings, const FindingRow& row)
{
    const Finding& first = firstOf(findings, row);
    return row.isFolded() ? several(first.subject, row.findings.size()) : rowText(first.name);
}

QString FindingText::sentence(const Findings& findings, const FindingRow& row, WallTime now)
{
    return row.isFolded() ? folded(findings, row, now) : oneOf(firstOf(findings, row), now);
}

QString FindingText::console(const Findings& findings, const FindingRow& row)
{
    const Finding& first = firstOf(findings, row);
    if (first.subject == FindingSubject::Console) {
        return {};
    }
    std::set<const Corvel*> consoles;
    for (const std::uint32_t each : row.findings) {
        consoles.insert(findings.list[each].corvel.get());
    }
    return consoles.size() > 1 ? several(FindingSubject::Console, consoles.size()) : rowText(first.console);
}

QString FindingText::spoken(const Findings& findings, const FindingRow& row, WallTime now)
{
    const Finding& first = firstOf(findings, row);
    return lodestar::spoken({name(findings, row), spokenSentence(findings, row, now), console(findings, row),
                             first.since ? AgeText::since(*first.since, now) : QString()});
}

} // namespace lodestar
