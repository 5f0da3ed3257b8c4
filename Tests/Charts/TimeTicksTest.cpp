// SPDX-License-Identifier: Apache-2.0
#include "Charts/TimeTicks.h"

#include <QDateTime>
#include <QStringList>
#include <gtest/gtest.h>

#include <ctime>
#include <limits>

namespace lodestar::charttest
{
namespace
{

using Unit = TimeTick::Unit;
constexpr int hour = 3600;

/// In Central Europe, unless a test sets another zone.
class TimeTicksTest : public testing::Test
{
protected:
    TimeTicksTest() { setZone("CET-1CEST,M3.5.0,M10.5.0/3"); }
    ~TimeTicksTest() override { setZone("UTC"); }
    static void setZone(const char* zone)
    {
        qputenv("TZ", zone);
        ::tzset();
    }
    static double utc(const char* text)
    {
        return static_cast<double>(
            QDateTime::fromString(QLatin1String(text) + QLatin1Char('Z'), Qt::ISODate).toSecsSinceEpoch());
    }
    /// Local times of ticks; a new day, month or year stands as its date.
    static QStringList ticks(const char* from, const char* to, const TimeStep& step)
    {
        QStringList found;
        for (const TimeTick& tick : timeTicks(utc(from), utc(to), step)) {
            const QDateTime local = QDateTime::fromSecsSinceEpoch(tick.time);
            const bool isDate = tick.unit != Unit::Minute && tick.unit != Unit::Second;
            found << (isDate ? local.date().toString(Qt::ISODate) : local.time().toString("HH:mm:ss"));
            if (isDate) {
                EXPECT_EQ(local, local.date().startOfDay());
            }
        }
        return found;
    }
};

TEST_F(TimeTicksTest, StepsAreThoseOfClocksAndCalendars)
{
    EXPECT_EQ(timeStep(0), (TimeStep{Unit::Second, 1}));
    EXPECT_EQ(timeStep(7), (TimeStep{Unit::Second, 10}));
    EXPECT_EQ(timeStep(31), (TimeStep{Unit::Minute, 60}));
    EXPECT_EQ(timeStep(2 * hour + 1), (TimeStep{Unit::Minute, 3 * hour}));
    EXPECT_EQ(timeStep(13 * hour), (TimeStep{Unit::Day, 1}));
    EXPECT_EQ(timeStep(86400.0 * 20), (TimeStep{Unit::Month, 1}));
    EXPECT_EQ(timeStep(86400.0 * 366), (TimeStep{Unit::Year, 2}));
    EXPECT_EQ(timeStep(std::numeric_limits<double>::infinity()), (TimeStep{Unit::Year, 100}));
}

TEST_F(TimeTicksTest, TicksStandAtLocalTimesAndADayAtItsMidnight)
{
    EXPECT_EQ(ticks("2026-03-11T20:46:00", "2026-03-12T08:41:00", {Unit::Minute, 3 * hour}),
              QStringList({"2026-03-12", "03:00:00", "06:00:00", "09:00:00"}));
    EXPECT_EQ(ticks("2026-03-12T08:59:57", "2026-03-12T09:00:00", {Unit::Second, 2}),
              QStringList({"09:59:58", "10:00:00"}));
    EXPECT_EQ(ticks("2026-03-12T00:00:00", "2026-03-31T00:00:00", {Unit::Day, 7}),
              QStringList({"2026-03-16", "2026-03-23", "2026-03-30"}))
        << "Mondays, across a change of the clocks";
    EXPECT_EQ(ticks("2025-11-15T00:00:00", "2026-04-15T00:00:00", {Unit::Month, 3}),
              QStringList({"2026-01-01", "2026-04-01"}));
    EXPECT_EQ(timeTicks(utc("2025-12-15T00:00:00"), utc("2026-02-15T00:00:00"), {Unit::Month, 1})[0].unit, Unit::Year);
    EXPECT_EQ(ticks("1999-06-01T00:00:00", "2012-01-01T00:00:00", {Unit::Year, 5}),
              QStringList({"2000-01-01", "2005-01-01", "2010-01-01"}));
    setZone("NPT-5:45");
    EXPECT_EQ(ticks("2026-03-12T00:00:00", "2026-03-12T02:00:00", {Unit::Minute, hour}),
              QStringList({"06:00:00", "07:00:00"}));
    // A zone as there is none today, and an interval as there is none.
    setZone("LMT-0:53:28");
    EXPECT_EQ(ticks("2026-03-12T00:00:00", "2026-03-12T02:00:00", {Unit::Minute, hour}),
              QStringList({"01:00:00", "02:00:00"}));
    EXPECT_TRUE(timeTicks(10, 5, {Unit::Minute, 60}).isEmpty());
    EXPECT_LE(timeTicks(0, 4e9, {Unit::Second, 1}).size(), 1000);
}

TEST_F(TimeTicksTest, ChangesOfTheClocks)
{
    // Forward: 02:00 does not exist.
    EXPECT_EQ(ticks("2026-03-28T23:00:00", "2026-03-29T03:00:00", {Unit::Minute, hour}),
              QStringList({"2026-03-29", "01:00:00", "03:00:00", "04:00:00", "05:00:00"}));
    EXPECT_EQ(ticks("2026-03-28T23:00:00", "2026-03-29T05:00:00", {Unit::Minute, 2 * hour}),
              QStringList({"2026-03-29", "04:00:00", "06:00:00"}));
    // Back: 02:00 comes twice.
    EXPECT_EQ(ticks("2026-10-24T22:00:00", "2026-10-25T03:00:00", {Unit::Minute, hour}),
              QStringList({"2026-10-25", "01:00:00", "02:00:00", "02:00:00", "03:00:00", "04:00:00"}));
    EXPECT_EQ(ticks("2026-10-24T22:00:00", "2026-10-25T03:00:00", {Unit::Minute, 2 * hour}),
              QStringList({"2026-10-25", "02:00:00", "04:00:00"}));
    for (const char* const from : {"2026-03-28T12:00:00", "2026-10-24T12:00:00"}) {
        const QList<TimeTick> found = timeTicks(utc(from), utc(from) + 72.0 * hour, {Unit::Minute, 6 * hour});
        EXPECT_EQ(found.size(), 12) << from;
        for (const TimeTick& tick : found) {
            EXPECT_EQ(QDateTime::fromSecsSinceEpoch(tick.time).time().hour() % 6, 0) << from;
        }
    }
    // Forward at midnight: that day begins at 01:00.
    setZone("AAA3BBB,M11.1.0/0,M2.3.0/0");
    EXPECT_EQ(ticks("2026-11-01T01:00:00", "2026-11-01T04:30:00", {Unit::Minute, hour}),
              QStringList({"22:00:00", "23:00:00", "2026-11-01", "02:00:00"}));
    EXPECT_EQ(ticks("2026-10-31T01:00:00", "2026-11-02T12:00:00", {Unit::Day, 1}),
              QStringList({"2026-10-31", "2026-11-01", "2026-11-02"}));
}

} // namespace
} // namespace lodestar::charttest
