// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDateTime>
#include <QLocale>
#include <QString>

#include <optional>
#include <string_view>

namespace lodestar
{

class XMLElement;

/// A wall-clock date and time as a feed states it. It belongs to no zone: the feed's closing Z is a letter, not a zone,
/// and what was written is what is shown, on every device alike and through every clock change. That is meant.
struct FeedDate {
    QDate date;
    QTime time;
    friend bool operator==(const FeedDate&, const FeedDate&) = default;
};

/// Reads exactly "yyyy-MM-dd'T'HH:mm:ss.SSS'Z'" in ASCII digits. Nothing for any other text and for what no calendar or
/// clock has.
std::optional<FeedDate> parseFeedDate(std::string_view text);

/// The date in the locale's medium style, the time in its short one, as in "3 Jul 2026, 10:25".
QString mediumDateShortTime(const FeedDate& date, const QLocale& locale = QLocale());

/// When the feed was published, as its first entry says and as the current locale writes it; empty when the feed does
/// not say, or not readably. Any thread.
QString feedTimeStamp(const XMLElement& feedRoot);

} // namespace lodestar
