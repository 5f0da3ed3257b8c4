// SPDX-License-Identifier: Apache-2.0
#include "Views/Common/AgeText.h"

#include "Fleet/Watch.h"
#include "Views/Common/FeedTimeStamp.h"

#include <QCoreApplication>

namespace lodestar
{
namespace
{

using std::chrono::hours;
using std::chrono::minutes;
using std::chrono::seconds;

/// How far a console's or a device's clock may be ahead and still mean now.
constexpr minutes clockSlack{2};
constexpr int daysOfWeek = 7;

struct Words {
    Q_DECLARE_TR_FUNCTIONS(lodestar::AgeText)
};

QDateTime local(WallTime time)
{
    return QDateTime::fromSecsSinceEpoch(std::chrono::floor<seconds>(time).time_since_epoch() / seconds(1));
}

/// "just now" and "2 min ago"; null for what is neither.
QString shortAge(seconds age)
{
    if (age < -clockSlack || age >= hours(1)) {
        return {};
    }
    return age < minutes(1) ? Words::tr("just now")
                            : Words::tr("%Ln min ago", nullptr, static_cast<int>(age / minutes(1)));
}

enum class Clock { Shown, Left };

/// The day, and with it the time of day as far as it is shown.
QString dayOf(WallTime then, WallTime now, Clock clock)
{
    const QDateTime stamp = local(then);
    const auto days = stamp.date().daysTo(local(now).date());
    const bool ahead = then > now + clockSlack;
    if (days == 0 && !ahead) {
        return shortTime(stamp.time());
    }
    if (days < 0 || ahead) {
        return mediumDate(stamp.date());
    }
    if (days >= daysOfWeek) {
        return AgeText::shortDate(then, now);
    }
    const QString day = days == 1 ? Words::tr("yesterday")
                                  : QLocale().standaloneDayName(stamp.date().dayOfWeek(), QLocale::ShortFormat);
    //: %1 a day as in "yesterday" or "Mon", %2 a time of day
    return clock == Clock::Left ? day : Words::tr("%1 %2").arg(day, shortTime(stamp.time()));
}

seconds ageOf(WallTime then, WallTime now)
{
    return std::chrono::floor<seconds>(now - then);
}

} // namespace

QString AgeText::of(WallTime then, WallTime now)
{
    const QString age = shortAge(ageOf(then, now));
    return age.isNull() ? dayOf(then, now, Clock::Shown) : age;
}

QString AgeText::atRowEnd(WallTime then, WallTime now)
{
    const QString age = shortAge(ageOf(then, now));
    return age.isNull() ? dayOf(then, now, Clock::Left) : age;
}

QString AgeText::moment(WallTime then, WallTime now)
{
    return dayOf(then, now, Clock::Shown);
}

QString AgeText::momentOfDay(WallTime then, WallTime now)
{
    const bool today = local(then).date() == local(now).date() && then <= now + clockSlack;
    //: %1 a time of day
    return today ? Words::tr("today, %1").arg(clock(then)) : moment(then, now);
}

QString AgeText::since(const Since& since, WallTime now)
{
    const QString moment = AgeText::moment(since.time, now);
    //: %1 as in "09:41", "yesterday 21:40" or "3 Mar"
    return since.exact ? Words::tr("since %1").arg(moment) : Words::tr("at least since %1").arg(moment);
}

QString AgeText::readAgo(WallTime then, WallTime now)
{
    const seconds age = ageOf(then, now);
    if (age < hours(1) || age >= hours(24)) {
        //: %1 as in "2 min ago" or "yesterday 21:40"
        return Words::tr("read %1").arg(of(then, now));
    }
    return Words::tr("read %Ln h ago", nullptr, static_cast<int>(age / hours(1)));
}

QString AgeText::clock(WallTime time)
{
    return shortTime(local(time).time());
}

QString AgeText::date(WallTime time)
{
    return mediumDate(local(time).date());
}

QString AgeText::shortDate(WallTime time, WallTime now)
{
    const QDate day = local(time).date();
    return day.year() == local(now).date().year() ? dayAndMonth(day) : mediumDate(day);
}

bool AgeText::isOld(WallTime then, WallTime now)
{
    return ageOf(then, now) > Watch::shared().oldAge();
}

} // namespace lodestar
