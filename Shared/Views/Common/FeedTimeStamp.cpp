// SPDX-License-Identifier: Apache-2.0
#include "Views/Common/FeedTimeStamp.h"

#include "Controllers/REST/XMLElement.h"

#include <algorithm>
#include <array>

namespace lodestar
{
namespace
{

constexpr std::string_view pattern = "0000-00-00T00:00:00.000Z";

bool matchesPattern(std::string_view text)
{
    return std::ranges::equal(text, pattern, [](char given, char wanted) {
        return wanted == '0' ? given >= '0' && given <= '9' : given == wanted;
    });
}

int number(std::string_view digits)
{
    int value = 0;
    for (const char digit : digits) {
        value = value * 10 + (digit - '0');
    }
    return value;
}

struct MediumDate {
    QLocale::Language language;
    const char16_t* pattern;
};

// Qt has long, short and narrow dates only.
constexpr std::array<MediumDate, 21> mediumDates = {{
    {QLocale::Arabic, u"d MMM yyyy"},         {QLocale::Chinese, u"yyyy年M月d日"},
    {QLocale::Czech, u"d. M. yyyy"},          {QLocale::Danish, u"d. MMM yyyy"},
    {QLocale::Dutch, u"d MMM yyyy"},          {QLocale::Finnish, u"d.M.yyyy"},
    {QLocale::French, u"d MMM yyyy"},         {QLocale::German, u"dd.MM.yyyy"},
    {QLocale::Hebrew, u"d MMM yyyy"},         {QLocale::Hungarian, u"yyyy. MMM d."},
    {QLocale::Italian, u"d MMM yyyy"},        {QLocale::Japanese, u"yyyy/MM/dd"},
    {QLocale::Korean, u"yyyy. M. d."},        {QLocale::NorwegianBokmal, u"d. MMM yyyy"},
    {QLocale::Polish, u"d MMM yyyy"},         {QLocale::Portuguese, u"d 'de' MMM 'de' yyyy"},
    {QLocale::Russian, u"d MMM yyyy 'г'."},   {QLocale::Spanish, u"d MMM yyyy"},
    {QLocale::Swedish, u"d MMM yyyy"},        {QLocale::Turkish, u"d MMM yyyy"},
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

} // namespace

std::optional<FeedDate> parseFeedDate(std::string_view text)
{
    if (!matchesPattern(text)) {
        return {};
    }
    const auto part = [text](std::size_t from, std::size_t length) { return number(text.substr(from, length)); };
    const FeedDate read{QDate(part(0, 4), part(5, 2), part(8, 2)),
                        QTime(part(11, 2), part(14, 2), part(17, 2), part(20, 3))};
    return read.date.isValid() && read.time.isValid() ? std::optional(read) : std::nullopt;
}

QString mediumDateShortTime(const FeedDate& date, const QLocale& locale)
{
    // The C locale's short time has seconds, also as the system's locale, which does not equal it.
    const QLocale shown = locale.language() == QLocale::C ? QLocale(QLocale::English, QLocale::UnitedKingdom) : locale;
    return shown.toString(date.date, mediumDatePattern(shown)) + QStringLiteral(", ") +
           shown.toString(date.time, QLocale::ShortFormat);
}

QString feedTimeStamp(const XMLElement& feedRoot)
{
    const auto published = feedRoot.path({"entry", "published"}).text();
    const auto date = published ? parseFeedDate(*published) : std::nullopt;
    return date ? mediumDateShortTime(*date) : QString();
}

} // namespace lodestar
