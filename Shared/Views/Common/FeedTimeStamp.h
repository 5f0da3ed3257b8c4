// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Inventory/FeedDate.h"

#include <QDateTime>
#include <QLocale>
#include <QString>

namespace lodestar
{

class Feed;

/// A date and time as a clock on the wall has them.
struct WallClock {
    QDate date;
    QTime time;
};

/// The date in the locale's medium style, the time in its short one, as in "3 Jul 2026, 10:25".
QString mediumDateShortTime(const WallClock& clock, const QLocale& locale = QLocale());
QString mediumDateShortTime(const FeedDate& date, const QLocale& locale = QLocale());

/// When the feed was published, as its first entry says and as the current locale writes it; empty when the feed does
/// not say, or not readably. Any thread.
QString feedTimeStamp(const Feed& feed);

} // namespace lodestar
