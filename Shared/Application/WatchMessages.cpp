// SPDX-License-Identifier: Apache-2.0
#include "Application/WatchMessages.h"

#include "Fleet/Readings.h"
#include "Fleet/WatchNews.h"
#include "Kit/Core/Sentence.h"
#include "Views/Attention/ChangeText.h"
#include "Views/Attention/FindingText.h"
#include "Views/Common/AgeText.h"
#include "Views/Common/FeedName.h"
#include "Views/Common/ReasonText.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

namespace lodestar
{
namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(lodestar::WatchMessages)
};

/// A message shows little, and a name of a console may be of any length.
constexpr qsizetype longestName = 60;
constexpr qsizetype longestEventText = 120;

/// What can be worse, in the order in which a message tells it.
enum class Fault {
    ConsoleOffline,
    SystemError,
    SystemIncomplete,
    IOServerError,
    PartitionError,
    FeedsMissing,
    IOServerStopped,
    PartitionStopped,
    LEDLit,
    GroupError,
    NewEvent
};
constexpr std::size_t faultCount = 11;

Fault faultOf(const Finding& finding)
{
    const bool isIOServer = finding.subject == FindingSubject::IOServer;
    switch (finding.rank) {
    case FindingRank::SystemErrorLit:
    case FindingRank::SystemError:
        return FindingText::isIncomplete(finding) ? Fault::SystemIncomplete : Fault::SystemError;
    case FindingRank::IOServerError:
        return Fault::IOServerError;
    case FindingRank::PartitionError:
        return Fault::PartitionError;
    case FindingRank::ConsoleOffline:
        return Fault::ConsoleOffline;
    case FindingRank::FeedsMissing:
        return Fault::FeedsMissing;
    case FindingRank::Stopped:
        return isIOServer ? Fault::IOServerStopped : Fault::PartitionStopped;
    case FindingRank::LEDLit:
        return Fault::LEDLit;
    case FindingRank::GroupError:
        return Fault::GroupError;
    case FindingRank::OpenEvent:
        return Fault::NewEvent;
    }
    return Fault::SystemError;
}

QString shortened(const std::string& text, qsizetype length = longestName)
{
    return isolated(lodestar::shortened(QString::fromStdString(text), length));
}

/// The parts that there are, as sentences one after the other.
QString joined(const QStringList& sentences)
{
    QString text;
    for (const QString& sentence : sentences) {
        if (!sentence.isEmpty()) {
            //: Two sentences, the first without its full stop.
            text = text.isEmpty() ? sentence : Words::tr("%1. %2").arg(text, sentence);
        }
    }
    return text;
}

QString capitalised(QString text)
{
    if (!text.isEmpty()) {
        text[0] = text[0].toUpper();
    }
    return text;
}

Message message(const QString& summary, const QString& body)
{
    return {summary.toStdString(), body.toStdString()};
}

/// "Harbour B, between 02:57 and 03:12": nobody was there when it happened. What begins with the console's name needs
/// the time alone.
QString placeAndTime(const Change& change, const Finding& finding, WallTime now)
{
    const QString before = AgeText::moment(change.before, now);
    const QString seen = AgeText::moment(change.seen, now);
    //: Times of day, as a sentence or with a console before it.
    return finding.subject == FindingSubject::Console
               ? Words::tr("Between %1 and %2").arg(before, seen)
               : Words::tr("%1, between %2 and %3").arg(shortened(change.console), before, seen);
}

Message ofOffline(const Finding& finding)
{
    QString reason;
    QString lastRead;
    if (finding.error) {
        reason = capitalised(reasonText(*finding.error));
    }
    if (const auto reading = finding.corvel ? Readings::shared().of(*finding.corvel) : nullptr;
        reading && reading->lastComplete) {
        lastRead = Words::tr("Last read in full at %1").arg(AgeText::moment(*reading->lastComplete, reading->ended));
    }
    //: %1 a console
    return message(Words::tr("%1 is offline").arg(shortened(finding.console)), joined({reason, lastRead}));
}

Message ofEvent(const Finding& event)
{
    QStringList parts{shortened(event.eventText, longestEventText)};
    if (!event.referenceCode.empty()) {
        parts << shortened(event.referenceCode);
    }
    if (event.callsHome) {
        parts << Words::tr("call home");
    }
    //: %1 a console, %2 the number of an event
    return message(Words::tr("%1: #%2 opened").arg(shortened(event.console), shortened(event.eventNumber)),
                   Sentence::joined(parts));
}

QString summaryOfOne(const Finding& finding)
{
    const QString name = shortened(finding.name);
    switch (faultOf(finding)) {
    case Fault::SystemIncomplete:
        return Words::tr("%1 is incomplete").arg(name);
    case Fault::FeedsMissing:
        //: %1 a console, %2 as in "Partitions not read"
        return Words::tr("%1: %2").arg(shortened(finding.console), feedsNotRead(finding.missing));
    case Fault::IOServerStopped:
    case Fault::PartitionStopped:
        return Words::tr("%1 stopped").arg(name);
    case Fault::LEDLit:
        return Words::tr("%1: LED on").arg(name);
    default:
        return Words::tr("%1 is in error").arg(name);
    }
}

Message ofOne(const Change& change, const Finding& finding, WallTime now)
{
    switch (faultOf(finding)) {
    case Fault::ConsoleOffline:
        return ofOffline(finding);
    case Fault::NewEvent:
        return ofEvent(finding);
    default:
        return message(summaryOfOne(finding),
                       joined({shortened(finding.referenceCode), placeAndTime(change, finding, now)}));
    }
}

/// Findings of one console that are wrong in the same way: "helios-03 and vios-harbour-2b in error".
QString namesOf(Fault fault, const QStringList& names)
{
    const QString list = joinedList(names);
    const int count = static_cast<int>(names.size());
    switch (fault) {
    case Fault::ConsoleOffline:
        return Words::tr("offline");
    case Fault::SystemIncomplete:
        return Words::tr("%1 incomplete").arg(list);
    case Fault::FeedsMissing:
        return Words::tr("not read in full");
    case Fault::IOServerStopped:
    case Fault::PartitionStopped:
        return Words::tr("%1 stopped").arg(list);
    case Fault::LEDLit:
        return Words::tr("LED on at %1").arg(list);
    case Fault::NewEvent:
        return Words::tr("%Ln new events", nullptr, count);
    default:
        return Words::tr("%1 in error").arg(list);
    }
}

QString countOf(Fault fault, int n)
{
    switch (fault) {
    case Fault::ConsoleOffline:
        return Words::tr("%Ln consoles offline", nullptr, n);
    case Fault::SystemError:
        return Words::tr("%Ln systems in error", nullptr, n);
    case Fault::SystemIncomplete:
        return Words::tr("%Ln systems incomplete", nullptr, n);
    case Fault::IOServerError:
        return Words::tr("%Ln IO servers in error", nullptr, n);
    case Fault::PartitionError:
        return Words::tr("%Ln partitions in error", nullptr, n);
    case Fault::FeedsMissing:
        return Words::tr("%Ln consoles not read in full", nullptr, n);
    case Fault::IOServerStopped:
        return Words::tr("%Ln IO servers stopped", nullptr, n);
    case Fault::PartitionStopped:
        return Words::tr("%Ln partitions stopped", nullptr, n);
    case Fault::LEDLit:
        return Words::tr("%Ln LEDs on", nullptr, n);
    case Fault::GroupError:
        return Words::tr("%Ln groups in error", nullptr, n);
    case Fault::NewEvent:
        return Words::tr("%Ln new events", nullptr, n);
    }
    return {};
}

/// Which words a fault shares with others when names tell what it is about.
Fault byName(Fault fault)
{
    switch (fault) {
    case Fault::IOServerError:
    case Fault::PartitionError:
    case Fault::GroupError:
        return Fault::SystemError;
    case Fault::IOServerStopped:
        return Fault::PartitionStopped;
    default:
        return fault;
    }
}

QString bodyOfSeveral(const std::vector<Finding>& findings, bool withNames)
{
    std::array<QStringList, faultCount> faults;
    for (const Finding& finding : findings) {
        const Fault fault = faultOf(finding);
        faults[static_cast<std::size_t>(withNames ? byName(fault) : fault)] << shortened(finding.name);
    }
    QStringList parts;
    for (std::size_t index = 0; index < faultCount; ++index) {
        if (!faults[index].isEmpty()) {
            const auto fault = static_cast<Fault>(index);
            QString part =
                withNames ? namesOf(fault, faults[index]) : countOf(fault, static_cast<int>(faults[index].size()));
            // Names stay as they are at the beginning of a sentence, too.
            const bool isOwnWord = fault == Fault::ConsoleOffline || fault == Fault::FeedsMissing;
            parts << (isOwnWord && parts.isEmpty() ? capitalised(std::move(part)) : part);
        }
    }
    return Sentence::joined(parts);
}

QString gotWorse(std::size_t count)
{
    return Words::tr("%Ln things got worse", nullptr, static_cast<int>(count));
}

Message ofSeveral(const WatchNews& news)
{
    const int count = static_cast<int>(news.worse.size());
    const bool oneConsole = news.consoles == 1;
    if (oneConsole) {
        //: %1 a console, %2 as in "3 things got worse"
        return message(Words::tr("%1: %2").arg(shortened(news.worse.front().console), gotWorse(news.worse.size())),
                       bodyOfSeveral(news.worseNow, true));
    }
    //: %1 as in "7 things got worse", %n consoles
    return message(Words::tr("%1 on %Ln consoles", nullptr, static_cast<int>(news.consoles))
                       .arg(gotWorse(static_cast<std::size_t>(count))),
                   bodyOfSeveral(news.worseNow, false));
}

QString remaining(std::size_t count)
{
    if (count == 0) {
        return {};
    }
    return Words::tr("%Ln things remain", nullptr, static_cast<int>(count));
}

QString summaryOfBetter(const Change& change)
{
    const QString name = shortened(change.name);
    switch (change.kind) {
    case ChangeKind::OnlineAgain:
        return Words::tr("%1 is online again").arg(name);
    case ChangeKind::FeedReadAgain:
        //: %1 a console, %2 the name of a feed, as in "Partitions"
        return Words::tr("%1: %2 read again").arg(name, feedNameAtStart(change.object.type));
    case ChangeKind::LEDOff:
        return Words::tr("%1: LED off").arg(name);
    default:
        //: %1 a name, %2 the console's word for a state
        return Words::tr("%1 is %2 again").arg(name, shortened(change.to));
    }
}

QString gotBetter(std::size_t count)
{
    return Words::tr("%Ln things got better", nullptr, static_cast<int>(count));
}

Message ofBetter(const WatchNews& news)
{
    if (news.better.size() > 1) {
        return message(gotBetter(news.better.size()), remaining(news.needAttention));
    }
    const Change& change = news.better.front();
    // A console's message begins with its name.
    QString where = thingOf(change).kind == WatchedThing::Kind::Object ? shortened(change.console) : QString();
    if (change.lasted.count() > 0) {
        const QString duration = ChangeText::duration(change.lasted);
        //: %1 a console, %2 as in "42 min"
        where = where.isEmpty() ? Words::tr("After %1").arg(duration) : Words::tr("%1, after %2").arg(where, duration);
    }
    return message(summaryOfBetter(change), joined({where, remaining(news.needAttention)}));
}

Message ofNight(const WatchNews& news)
{
    const std::size_t still = news.worseNow.size();
    //: %1 as in "5 things got worse"
    return message(Words::tr("In the night, %1").arg(gotWorse(news.worse.size())),
                   still == 0 ? Words::tr("None of them needs attention any more")
                              : Words::tr("%Ln of them still need attention", nullptr, static_cast<int>(still)));
}

Message ofCounts(const WatchNews& news)
{
    const int count = static_cast<int>(news.consoles);
    const QString summary = count > 0                ? Words::tr("%Ln consoles need attention", nullptr, count)
                            : news.needAttention > 0 ? FindingText::needAttention(news.needAttention)
                                                     : Words::tr("Nothing known needs attention");
    return message(summary, Words::tr("Open Lodestar to see more"));
}

} // namespace

Message WatchMessages::of(const WatchNews& news, bool counts, WallTime now)
{
    if (news.ofTheNight) {
        return ofNight(news); // counts alone as it is
    }
    if (counts) {
        return ofCounts(news);
    }
    if (news.worse.empty()) {
        return ofBetter(news);
    }
    Message worse = news.worse.size() == 1 ? ofOne(news.worse.front(), news.worseNow.front(), now) : ofSeveral(news);
    if (!news.better.empty()) {
        worse.body = joined({QString::fromStdString(worse.body), gotBetter(news.better.size())}).toStdString();
    }
    return worse;
}

Message WatchMessages::test()
{
    return message(Words::tr("Lodestar can reach you"), Words::tr("This is how a message looks"));
}

} // namespace lodestar
