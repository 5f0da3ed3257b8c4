// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Inventory/FeedDate.h"

#include <QDateTime>
#include <QLocale>
#include <QString>

namespace lodestar
{

class Feed;

/// A date and time without a time zone, as a wall clock shows them.
struct WallClock {
    QDate date;
    QTime time;
};

/// Date in the locale's medium style and time in its short style, as in "3 Jul 2026, 10:25".
QString mediumDateShortTime(const WallClock& clock, const QLocale& locale = QLocale());
QString mediumDateShortTime(const FeedDate& date, const QLocale& locale = QLocale());
/// The parts of it alone: "3 Jul 2026", "3 Jul" and "10:25".
QString mediumDate(QDate date, const QLocale& locale = QLocale());
QString dayAndMonth(QDate date, const QLocale& locale = QLocale());
QString shortTime(QTime time, const QLocale& locale = QLocale());

/// The time at which the feed was published, taken from its first entry and written in the current locale. Empty when
/// the entry has no readable time. Any thread.
QString feedTimeStamp(const Feed& feed);

} // namespace lodestar
