// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/Sentence.h"
#include "Views/Common/AgeText.h"
#include "Views/Common/FeedName.h"
#include "Views/Common/ReasonText.h"
#include "Views/Connection/ConnectionSections.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>

namespace lodestar
{
namespace
{

using std::chrono::duration;
using std::chrono::microseconds;
using std::chrono::milliseconds;
using std::chrono::seconds;

constexpr int okStatus = 200;
constexpr double bytesInKB = 1000;

struct Words {
    Q_DECLARE_TR_FUNCTIONS(lodestar::ConnectionContent)
};

QString nothing()
{
    return QStringLiteral("–");
}

/// Words for the bar's caption, too.
struct StageNames {
    const char* title;
    const char* part;
};

StageNames namesOf(StageKind kind)
{
    switch (kind) {
    case StageKind::Name:
        return {QT_TRANSLATE_NOOP("lodestar::ConnectionContent", "Name"),
                QT_TRANSLATE_NOOP("lodestar::ConnectionContent", "name")};
    case StageKind::Connect:
        return {QT_TRANSLATE_NOOP("lodestar::ConnectionContent", "Connect"),
                QT_TRANSLATE_NOOP("lodestar::ConnectionContent", "connect")};
    case StageKind::TLS:
        return {QT_TRANSLATE_NOOP("lodestar::ConnectionContent", "TLS"),
                QT_TRANSLATE_NOOP("lodestar::ConnectionContent", "TLS")};
    case StageKind::SessionCheck:
        return {QT_TRANSLATE_NOOP("lodestar::ConnectionContent", "Session check"),
                QT_TRANSLATE_NOOP("lodestar::ConnectionContent", "session")};
    case StageKind::Logon:
        return {QT_TRANSLATE_NOOP("lodestar::ConnectionContent", "Logon"),
                QT_TRANSLATE_NOOP("lodestar::ConnectionContent", "logon")};
    case StageKind::Feeds:
        break;
    }
    return {QT_TRANSLATE_NOOP("lodestar::ConnectionContent", "Six feeds"),
            QT_TRANSLATE_NOOP("lodestar::ConnectionContent", "feeds")};
}

QString certificateWords(const Reading& reading)
{
    if (!reading.certificate) {
        return {};
    }
    // What the handshake met is the certificate of the session check; a later one is told by the logon.
    if (reading.certificate->atSessionCheck) {
        return reading.certificate->atSessionCheckSince ? Words::tr("certificate as before")
                                                        : Words::tr("first contact");
    }
    switch (reading.certificate->compared) {
    case CertificateChange::FirstContact:
        return Words::tr("first contact");
    case CertificateChange::Changed:
        return Words::tr("certificate changed");
    case CertificateChange::Unchanged:
        break;
    }
    return Words::tr("certificate as before");
}

/// Whether a connection was made without looking up a name.
bool wasAddressGiven(const Stage& stage, const Reading& reading)
{
    return stage.kind == StageKind::Name &&
           reading.stages[static_cast<std::size_t>(StageKind::Connect)].result != StageResult::NotNeeded;
}

QString detailOf(const Stage& stage, const Reading& reading)
{
    switch (stage.kind) {
    case StageKind::Name:
        return QString::fromStdString(reading.address);
    case StageKind::Connect:
        return Words::tr("port 12443");
    case StageKind::TLS:
        return Sentence::joined({QString::fromStdString(reading.tlsVersion), certificateWords(reading)});
    case StageKind::SessionCheck:
        if (stage.status == 0) {
            return {};
        }
        //: %1 an HTTP status
        return (stage.status == okStatus ? Words::tr("%1, key accepted") : Words::tr("%1, key ended"))
            .arg(stage.status);
    case StageKind::Logon:
    case StageKind::Feeds:
        break;
    }
    return stage.status == 0 ? QString() : QString::number(stage.status);
}

QString capitalised(QString text)
{
    if (!text.isEmpty()) {
        text[0] = text[0].toUpper();
    }
    return text;
}

/// The reason with its code in brackets, unless the reason names the code itself.
QString reasonWithCode(const Error& error, const QString& reason)
{
    const QString code = reasonCode(error);
    //: %1 a reason, %2 a number such as -1202 or 401
    return code.isEmpty() || reason.contains(code) ? reason : Words::tr("%1 (%2)").arg(reason, code);
}

QString failureOf(const Stage& stage, const Reading& reading)
{
    const Error& error = stage.error ? *stage.error : reading.error.value_or(Error());
    const bool otherCertificate = stage.kind == StageKind::Logon && reading.certificate &&
                                  reading.certificate->atSessionCheck &&
                                  reasonOf(error) == ReadingReason::CertificateChanged;
    return reasonWithCode(error, otherCertificate ? Words::tr("Not the certificate of the session check")
                                                  : capitalised(reasonText(error)));
}

ConnectionRow stageRow(const Stage& stage, const Reading& reading)
{
    ConnectionRow row{.title = Words::tr(namesOf(stage.kind).title)};
    row.trailing = stage.duration.count() > 0 ? durationText(stage.duration) : nothing();
    switch (stage.result) {
    case StageResult::Done:
        row.mark = Role::State::Good;
        row.detail = detailOf(stage, reading);
        break;
    case StageResult::Failed:
        row.mark = Role::State::Error;
        row.failure = failureOf(stage, reading);
        break;
    case StageResult::NotNeeded:
        if (wasAddressGiven(stage, reading)) {
            row.mark = Role::State::Good;
            row.detail = Words::tr("address given");
            break;
        }
        row.mark = Role::State::Waiting;
        row.detail = stage.kind == StageKind::SessionCheck ? Words::tr("no key yet") : Words::tr("not needed");
        row.trailing = nothing();
        break;
    case StageResult::NotReached:
        row.mark = Role::State::Waiting;
        row.detail = Words::tr("not reached");
        row.trailing = nothing();
        break;
    }
    return row;
}

/// The bar that shows where the time went. The stages' times lie one after the other, the feeds take the rest.
void addParts(ConnectionSection& section, const Reading& reading)
{
    microseconds sum{};
    for (const Stage& stage : reading.stages) {
        sum += stage.duration;
    }
    QStringList names;
    for (const Stage& stage : reading.stages) {
        if (stage.duration.count() > 0) {
            section.parts << duration<double>(stage.duration) / sum;
            names << Words::tr(namesOf(stage.kind).part);
        }
    }
    if (!names.empty()) {
        section.partsNames = Sentence::joined(names);
        section.partsSum = attemptText(reading.duration());
    }
}

QString feedTitle(std::string_view type)
{
    if (type == ObjectType::ManagementConsole) {
        return Words::tr("Management Console");
    }
    if (type == ObjectType::ManagedSystem) {
        return Words::tr("Managed Systems");
    }
    if (type == ObjectType::VirtualIOServer) {
        return Words::tr("Virtual IO Servers");
    }
    if (type == ObjectType::LogicalPartition) {
        return Words::tr("Logical Partitions");
    }
    return type == ObjectType::ServiceableEvent ? Words::tr("Serviceable Events") : Words::tr("Resource Groups");
}

QString sizeText(std::size_t bytes)
{
    if (static_cast<double>(bytes) < bytesInKB) {
        return Words::tr("%Ln bytes", nullptr, static_cast<int>(bytes));
    }
    const QLocale locale;
    const double size = static_cast<double>(bytes) / bytesInKB;
    return size < bytesInKB ? Words::tr("%1 KB").arg(locale.toString(size, 'f', 0))
                            : Words::tr("%1 MB").arg(locale.toString(size / bytesInKB, 'f', 1));
}

QString entriesText(std::size_t entries)
{
    return Words::tr("%Ln entries", nullptr, static_cast<int>(entries));
}

QString feedFailure(const FeedReading& feed)
{
    const Error& error = *feed.error;
    switch (reasonOf(error)) {
    case ReadingReason::TimedOut:
        return reasonWithCode(error, Words::tr("no answer within %Ln s", nullptr,
                                               static_cast<int>(std::chrono::round<seconds>(feed.duration).count())));
    case ReadingReason::ServerError:
        //: %1 an HTTP status
        return Words::tr("%1, the console failed to answer").arg(statusOf(error));
    default:
        return reasonWithCode(error, reasonText(error));
    }
}

ConnectionRow feedRow(const FeedReading& feed)
{
    ConnectionRow row{.title = feedTitle(feed.type)};
    row.trailing = feed.began ? durationText(feed.duration) : nothing();
    if (feed.error) {
        row.mark = Role::State::Incomplete;
        row.detail = feedFailure(feed);
    } else if (!feed.readAt) {
        row.mark = Role::State::Waiting;
        row.detail = Words::tr("not reached");
    } else {
        row.mark = Role::State::Good;
        row.detail = Sentence::joined({feed.status == 0 ? QString() : QString::number(feed.status),
                                       entriesText(feed.entries), sizeText(feed.bytes)});
    }
    return row;
}

/// "Partitions were last read at 09:26, resource groups yesterday 21:40."
QString lastReadText(const Reading& reading, WallTime now)
{
    QString text;
    for (const FeedReading& feed : reading.feeds) {
        if (!feed.error || !feed.readAt) {
            continue;
        }
        const QString when = atMoment(*feed.readAt, now);
        text = text.isEmpty()
                   //: %1 the name of a feed, %2 as in "at 09:26" or "yesterday 21:40"
                   ? Words::tr("%1 were last read %2").arg(feedNameAtStart(feed.type), when)
                   //: %1 the same for another feed, which %2 and %3 add
                   : Words::tr("%1, %2 %3").arg(text, feedName(feed.type), when);
    }
    //: %1 a sentence that lacks its end
    return text.isEmpty() ? text : Words::tr("%1.").arg(text);
}

} // namespace

QString durationText(microseconds duration)
{
    if (duration < seconds(1)) {
        return Words::tr("%1 ms").arg(std::chrono::round<milliseconds>(duration).count());
    }
    return Words::tr("%1 s").arg(QLocale().toString(std::chrono::duration<double>(duration).count(), 'f', 1));
}

QString attemptText(microseconds duration)
{
    const double time = std::chrono::duration<double>(duration).count();
    const QString text = Words::tr("%1 s").arg(QLocale().toString(time, 'f', time < 1 ? 2 : 1));
    // It stands at the end of sentences, which must not break between the number and its unit.
    return QString(text).replace(QLatin1Char(' '), QChar(QChar::Nbsp));
}

QString atMoment(WallTime then, WallTime now)
{
    const QString moment = AgeText::moment(then, now);
    //: %1 a time of day
    return moment == AgeText::clock(then) ? Words::tr("at %1").arg(moment) : moment;
}

ConnectionSection stagesSection(const Reading& reading, WallTime now)
{
    ConnectionSection section{.kind = ConnectionSection::Stages,
                              .title = Words::tr("Last attempt"),
                              .detail = AgeText::momentOfDay(reading.ended, now)};
    const bool offline = reading.outcome == Reading::Outcome::Offline;
    for (const Stage& stage : reading.stages) {
        // The feeds that were fetched have a section of their own.
        if (stage.kind != StageKind::Feeds || offline) {
            section.rows << stageRow(stage, reading);
        }
    }
    if (!offline && reading.missingFeeds().empty()) {
        addParts(section, reading);
    }
    return section;
}

ConnectionSection feedsSection(const Reading& reading, WallTime now)
{
    std::array<const FeedReading*, feedTable.size()> feeds{};
    std::ranges::transform(reading.feeds, feeds.begin(), [](const FeedReading& feed) { return &feed; });
    std::stable_partition(feeds.begin(), feeds.end(), [](const FeedReading* feed) { return feed->error.has_value(); });
    const auto isRead = [](const FeedReading& feed) { return !feed.error && feed.readAt; };
    ConnectionSection section{.kind = ConnectionSection::Feeds,
                              .title = Words::tr("Feeds"),
                              //: %1 how many of the six feeds were read
                              .detail = Words::tr("%1 of 6").arg(std::ranges::count_if(reading.feeds, isRead)),
                              .foot = lastReadText(reading, now)};
    for (const FeedReading* feed : feeds) {
        section.rows << feedRow(*feed);
    }
    return section;
}

} // namespace lodestar
