// SPDX-License-Identifier: Apache-2.0
#include "Views/Attention/WatchText.h"

#include "Views/Common/FeedName.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTime>

#include <algorithm>

namespace lodestar
{
namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(lodestar::WatchText)
};

constexpr qsizetype longestName = 60;

} // namespace

QString WatchText::state()
{
    const WatchSettings& settings = Watch::shared().settings();
    //: %1 as in "15 min"
    return settings.on ? Words::tr("every %1").arg(interval(settings.every)) : Words::tr("off");
}

QString WatchText::interval(std::chrono::minutes interval)
{
    constexpr std::chrono::minutes hour{60};
    const auto count = static_cast<int>(interval.count());
    return interval % hour == std::chrono::minutes(0) ? Words::tr("%Ln h", nullptr, count / 60)
                                                      : Words::tr("%Ln min", nullptr, count);
}

QString WatchText::newEvents(WatchSettings::NewEvents choice)
{
    switch (choice) {
    case WatchSettings::NewEvents::None:
        return Words::tr("none");
    case WatchSettings::NewEvents::Open:
        return Words::tr("open");
    case WatchSettings::NewEvents::OpenCallHome:
        return Words::tr("open, call home");
    }
    return {};
}

QString WatchText::consoles(const std::vector<CorvelRef>& consoles, const WatchSettings& settings)
{
    const auto watched = std::ranges::count_if(consoles, [&settings](const CorvelRef& corvel) {
        return !settings.without.contains(corvel->address().value_or(""));
    });
    const QString all = QLocale().toString(static_cast<qulonglong>(consoles.size()));
    return static_cast<std::size_t>(watched) == consoles.size()
               ? Words::tr("all %1").arg(all)
               : Words::tr("%1 of %2").arg(QLocale().toString(static_cast<qlonglong>(watched)), all);
}

QString WatchText::timeOfDay(std::chrono::minutes sinceMidnight)
{
    // Quiet hours are planned, not read off a clock: 24 hours in every language, as the ages have them.
    return QTime::fromMSecsSinceStartOfDay(static_cast<int>(std::chrono::milliseconds(sinceMidnight).count()))
        .toString(QStringLiteral("HH:mm"));
}

QString WatchText::leftOut(const std::vector<CorvelRef>& consoles)
{
    QStringList names;
    for (const CorvelRef& corvel : consoles) {
        names << isolated(QString::fromStdString(corvel->name().value_or("")).left(longestName));
    }
    if (names.isEmpty()) {
        return {};
    }
    //: %1 the names of so many consoles
    return Words::tr("%1 are left out until you refresh them by hand: their certificates changed.", nullptr,
                     static_cast<int>(names.size()))
        .arg(joinedList(names));
}

} // namespace lodestar
