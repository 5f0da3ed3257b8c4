// SPDX-License-Identifier: Apache-2.0
#include "Views/Connection/ConnectionContent.h"

#include "Views/Common/AgeText.h"
#include "Views/Common/CellText.h"
#include "Views/Common/FeedName.h"
#include "Views/Common/ReasonText.h"
#include "Views/Connection/ConnectionSections.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace lodestar
{
namespace
{

using std::chrono::hours;
using std::chrono::minutes;

struct Words {
    Q_DECLARE_TR_FUNCTIONS(lodestar::ConnectionContent)
};

/// When everything was read, within a sentence.
QString readText(WallTime then, WallTime now)
{
    return now - then < hours(1) ? AgeText::of(then, now) : atMoment(then, now);
}

QString restText(WallTime then, WallTime now)
{
    const auto age = std::chrono::floor<minutes>(now - then);
    if (age >= hours(1)) {
        //: %1 as in "at 09:26" or "yesterday 21:40"
        return Words::tr("The rest was read %1.").arg(atMoment(then, now));
    }
    const int count = static_cast<int>(age.count());
    return count < 1 ? Words::tr("The rest was read just now.") : Words::tr("The rest is %Ln min old.", nullptr, count);
}

/// When the oldest of the feeds that are not missing was read.
std::optional<WallTime> oldestRead(const Reading& reading)
{
    std::optional<WallTime> oldest;
    for (const FeedReading& feed : reading.feeds) {
        if (!feed.error && feed.readAt && (!oldest || *feed.readAt < *oldest)) {
            oldest = feed.readAt;
        }
    }
    return oldest;
}

ConnectionRow partialVerdict(const Reading& reading, const std::vector<std::string_view>& missing, WallTime now)
{
    ConnectionRow row{.mark = Role::State::Incomplete,
                      //: %n of the six feeds
                      .title = Words::tr("Online, %Ln of 6 feeds missing", nullptr, static_cast<int>(missing.size()))};
    if (missing.size() == feedTable.size()) {
        row.detail = Words::tr("Nothing of it could be read.");
        return row;
    }
    QStringList names;
    for (const std::string_view type : missing) {
        names << (names.empty() ? feedNameAtStart(type) : feedName(type));
    }
    //: %1 names of feeds, as in "Partitions and resource groups"
    row.detail = Words::tr("%1 could not be read.").arg(joinedList(names));
    if (const auto oldest = oldestRead(reading)) {
        row.detail += QLatin1Char(' ') + restText(*oldest, now);
    }
    return row;
}

ConnectionRow verdictRow(const Reading& reading, WallTime now)
{
    if (reading.outcome == Reading::Outcome::NotTried) {
        return {.mark = Role::State::Waiting, .title = Words::tr("Not tried yet")};
    }
    if (reading.outcome == Reading::Outcome::Offline) {
        const WallTime since = reading.offlineSince.value_or(reading.ended);
        return {.mark = Role::State::Offline,
                //: %1 as in "02:58" or "yesterday 21:40"
                .title = Words::tr("Offline since %1").arg(AgeText::moment(since, now)),
                .detail = reading.error ? reasonVerdict(*reading.error) : QString()};
    }
    if (const auto missing = reading.missingFeeds(); !missing.empty()) {
        return partialVerdict(reading, missing, now);
    }
    return {.mark = Role::State::Good,
            .title = Words::tr("Online"),
            //: %1 as in "2 min ago" or "at 09:41", %2 a time in seconds
            .detail =
                Words::tr("Everything was read %1, in %2.")
                    .arg(readText(reading.oldestFeed().value_or(reading.ended), now), attemptText(reading.duration()))};
}

/// What a person may try.
QStringList stepsFor(const Reading& reading)
{
    if (reading.outcome == Reading::Outcome::Offline) {
        return reading.error ? reasonSteps(*reading.error) : QStringList();
    }
    const auto* const failed =
        std::ranges::find_if(reading.feeds, [](const FeedReading& feed) { return feed.error.has_value(); });
    if (failed == reading.feeds.end()) {
        return {};
    }
    return feedSteps(*failed->error);
}

ConnectionSection stepsSection(const QStringList& steps)
{
    ConnectionSection section{.kind = ConnectionSection::Steps, .title = Words::tr("What to try")};
    for (const QString& step : steps) {
        section.rows << ConnectionRow{.title = step};
    }
    return section;
}

ConnectionSection successSection(const Reading& reading, WallTime now)
{
    ConnectionSection section{.title = Words::tr("Last success")};
    QString when = Words::tr("never");
    if (reading.lastComplete) {
        when = AgeText::momentOfDay(*reading.lastComplete, now);
        if (reading.lastCompleteDuration.count() > 0) {
            //: %1 as in "today, 02:43", %2 a time in seconds
            when = Words::tr("%1, in %2").arg(when, attemptText(reading.lastCompleteDuration));
        }
    }
    section.rows << ConnectionRow{.title = Words::tr("Read in full"), .detail = when};
    if (reading.lastComplete && !reading.versionThen.empty()) {
        section.rows << ConnectionRow{.title = Words::tr("Version then"),
                                      .detail = isolated(QString::fromStdString(reading.versionThen))};
    }
    return section;
}

} // namespace

ConnectionContent connectionContent(const Reading& reading, WallTime now)
{
    using Outcome = Reading::Outcome;
    const Outcome outcome = reading.outcome;
    const bool whole = outcome != Outcome::NotTried && outcome != Outcome::Offline && reading.missingFeeds().empty();
    ConnectionContent content = {{.kind = ConnectionSection::Verdict, .rows = {verdictRow(reading, now)}}};
    const QStringList steps = stepsFor(reading);
    // What failed comes first: the feeds of a console that answered, the stages of one that did not.
    const bool feedsFirst = outcome != Outcome::NotTried && outcome != Outcome::Offline && !whole;
    if (feedsFirst) {
        content << feedsSection(reading, now);
    }
    if (!steps.empty()) {
        content << stepsSection(steps);
    }
    // After what is known and what to look at first: a refresh takes a new certificate and sends it the password.
    (steps.empty() ? content.front() : content.back()).refreshes = true;
    if (outcome != Outcome::NotTried) {
        content << stagesSection(reading, now);
    }
    if (whole) {
        content << feedsSection(reading, now);
    }
    if (reading.certificate) {
        content << certificateSection(reading, now);
    }
    if (!whole) {
        content << successSection(reading, now);
    }
    return content;
}

QString connectionText(const ConnectionContent& content)
{
    QStringList lines;
    for (const ConnectionSection& section : content) {
        if (!section.title.isEmpty()) {
            lines << QString() << spoken({section.title, section.detail});
        }
        for (const ConnectionRow& row : section.rows) {
            lines << row.spoken();
        }
        if (!section.foot.isEmpty()) {
            lines << section.foot;
        }
    }
    QString text = lines.join(QLatin1Char('\n'));
    // Every value ends its own line, so nothing is left to isolate.
    text.removeIf([](QChar each) { return each >= u'\u2066' && each <= u'\u2069'; });
    return text;
}

int rowCount(const ConnectionContent& content)
{
    qsizetype count = 0;
    for (const ConnectionSection& section : content) {
        count += section.rows.size();
    }
    return static_cast<int>(count);
}

} // namespace lodestar
