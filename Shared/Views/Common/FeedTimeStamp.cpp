// SPDX-License-Identifier: Apache-2.0
#include "Views/Common/FeedTimeStamp.h"

#include "Inventory/Feed.h"

#include <algorithm>
#include <array>

namespace lodestar
{
namespace
{

struct MediumDate {
    QLocale::Language language;
    const char16_t* pattern;
};

// A table, because Qt has only long, short and narrow date formats. A language that is not listed has
// the pattern of British English.
constexpr std::array<MediumDate, 12> mediumDates = {{
    {QLocale::Chinese, u"yyyy年M月d日"},
    {QLocale::Czech, u"d. M. yyyy"},
    {QLocale::Danish, u"d. MMM yyyy"},
    {QLocale::Finnish, u"d.M.yyyy"},
    {QLocale::German, u"dd.MM.yyyy"},
    {QLocale::Hungarian, u"yyyy. MMM d."},
    {QLocale::Japanese, u"yyyy/MM/dd"},
    {QLocale::Korean, u"yyyy. M. d."},
    {QLocale::NorwegianBokmal, u"d. MMM yyyy"},
    {QLocale::Portuguese, u"d 'de' MMM 'de' yyyy"},
    {QLocale::Russian, u"d MMM yyyy 'г'."},
    {QLocale::Ukrainian, u"d MMM yyyy 'р'."},
}};

QString mediumDatePattern(const QLocale& locale)
{
    if (locale.language() == QLocale::English && locale.territory() == QLocale::UnitedStates) {
        return QStringLiteral("MMM d, yyyy");
    }
    const auto* const found = std::ranges::find(mediumDates, locale.language(), &MediumDate::language);
    return found != mediumDates.end() ? QString::fromUtf16(found->pattern) : QStringLiteral("d MMM yyyy");
}

/// The same without the year and what ties it to the rest.
QString dayAndMonthPattern(const QLocale& locale)
{
    QString pattern = mediumDatePattern(locale);
    const auto year = pattern.indexOf(QLatin1String("yyyy"));
    if (year == 0) {
        return pattern.mid(pattern.indexOf(QLatin1Char('M')));
    }
    pattern.truncate(year);
    pattern = pattern.trimmed();
    for (const auto* tie : {"'de'", ","}) {
        if (pattern.endsWith(QLatin1String(tie))) {
            pattern.chop(QLatin1String(tie).size());
        }
    }
    return pattern.trimmed();
}

// The C locale's short time has seconds. The system's locale may be C and yet not equal QLocale::c(), so the language
// is compared.
QLocale shownLocale(const QLocale& locale)
{
    return locale.language() == QLocale::C ? QLocale(QLocale::English, QLocale::UnitedKingdom) : locale;
}

} // namespace

QString mediumDateShortTime(const WallClock& clock, const QLocale& locale)
{
    return mediumDate(clock.date, locale) + QStringLiteral(", ") + shortTime(clock.time, locale);
}

QString mediumDate(QDate date, const QLocale& locale)
{
    const QLocale shown = shownLocale(locale);
    return shown.toString(date, mediumDatePattern(shown));
}

QString dayAndMonth(QDate date, const QLocale& locale)
{
    const QLocale shown = shownLocale(locale);
    return shown.toString(date, dayAndMonthPattern(shown));
}

QString shortTime(QTime time, const QLocale& locale)
{
    return shownLocale(locale).toString(time, QLocale::ShortFormat);
}

QString mediumDateShortTime(const FeedDate& date, const QLocale& locale)
{
    const auto month = static_cast<int>(static_cast<unsigned>(date.date.month()));
    const auto day = static_cast<int>(static_cast<unsigned>(date.date.day()));
    return mediumDateShortTime(WallClock{QDate(static_cast<int>(date.date.year()), month, day),
                                         QTime::fromMSecsSinceStartOfDay(static_cast<int>(date.time.count()))},
                               locale);
}

QString feedTimeStamp(const Feed& feed)
{
    const auto published = feed.published();
    const auto date = published ? parseFeedDate(*published) : std::nullopt;
    return date ? mediumDateShortTime(*date) : QString();
}

} // namespace lodestar
