// SPDX-License-Identifier: Apache-2.0
#include "Views/Find/FindText.h"

#include "Views/Common/AgeText.h"
#include "Views/Common/FeedName.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace lodestar
{
namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(lodestar::FindText)
};

constexpr std::size_t mostCounted = 999; // in a large fleet
constexpr qsizetype longestShown = 60;   // letters of a searched text

constexpr std::array<const char*, searchedKinds.size()> kinds = {
    QT_TRANSLATE_NOOP("lodestar::FindText", "Managed Systems"),
    QT_TRANSLATE_NOOP("lodestar::FindText", "Virtual IO Servers"),
    QT_TRANSLATE_NOOP("lodestar::FindText", "Logical Partitions"),
    QT_TRANSLATE_NOOP("lodestar::FindText", "Resource Groups"),
    QT_TRANSLATE_NOOP("lodestar::FindText", "Serviceable Events"),
    QT_TRANSLATE_NOOP("lodestar::FindText", "Consoles"),
};

QString shown(std::size_t number)
{
    return QLocale().toString(static_cast<qulonglong>(number));
}

QString namesOf(const FleetSearch& search, const std::vector<std::uint32_t>& consoles)
{
    QStringList names;
    for (const std::uint32_t console : consoles) {
        names << isolated(QString::fromStdString(search.consoles()[console].name));
    }
    return joinedList(names);
}

QString joined(QStringList sentences)
{
    sentences.removeAll(QString());
    return sentences.join(QLatin1Char(' '));
}

QString nothingRead()
{
    return Words::tr("Nothing was read yet. Refresh first.");
}

/// When the consoles were read: "09:41", or "09:41 to 09:43".
QString span(const FleetSearch& search, WallTime now)
{
    WallTime from = WallTime::max();
    WallTime until = WallTime::min();
    for (const ConsoleSnapshot& console : search.consoles()) {
        if (wasRead(console)) {
            from = std::min(from, console.reading->ended);
            until = std::max(until, console.reading->ended);
        }
    }
    const QString first = AgeText::moment(from, now);
    const QString last = AgeText::moment(until, now);
    //: %1 and %2 as in "09:41" or "yesterday 21:40"
    return first == last ? first : Words::tr("%1 to %2").arg(first, last);
}

} // namespace

QString FindText::kind(std::size_t kind)
{
    return Words::tr(kinds.at(kind));
}

QString FindText::count(const FleetSearch& search, std::size_t number)
{
    //: More than can be counted at a glance
    return search.isLarge() && number > mostCounted ? Words::tr("%1+").arg(shown(mostCounted)) : shown(number);
}

QString FindText::showAll(const FleetSearch& search, std::size_t number)
{
    return Words::tr("Show all %1").arg(count(search, number));
}

QString FindText::nothingFound(const QString& text)
{
    QString sought = text.trimmed();
    if (sought.size() > longestShown) {
        sought = sought.left(longestShown) + QChar(u'…');
    }
    return Words::tr("Nothing found for “%1”").arg(isolated(sought));
}

QString FindText::searched(const FleetSearch& search)
{
    if (search.consolesRead() == 0) {
        return nothingRead();
    }
    const QString consoles =
        Words::tr("%1 of %Ln consoles were searched.", nullptr, static_cast<int>(search.consoles().size()))
            .arg(shown(search.consolesRead()));
    return joined({consoles, notRead(search)});
}

QString FindText::things(const FleetSearch& search, WallTime now)
{
    if (search.consolesRead() == 0) {
        return nothingRead();
    }
    const QString things = Words::tr("%Ln things", nullptr, static_cast<int>(search.objects()));
    //: Within "2,318 things on 5 of 6 consoles, read 09:41."
    const QString consoles = Words::tr("%1 of %Ln consoles", nullptr, static_cast<int>(search.consoles().size()))
                                 .arg(shown(search.consolesRead()));
    //: %1 as in "2,318 things", %2 as in "5 of 6 consoles", %3 as in "09:41" or "09:41 to 09:43"
    const QString sentence = Words::tr("%1 on %2, read %3.").arg(things, consoles, span(search, now));
    return joined({sentence, notRead(search)});
}

QString FindText::notRead(const FleetSearch& search)
{
    QStringList sentences;
    if (const auto consoles = search.notRead(); !consoles.empty()) {
        //: %1 the names of so many consoles
        sentences << Words::tr("%1 were not read.", nullptr, static_cast<int>(consoles.size()))
                         .arg(namesOf(search, consoles));
    }
    // What is missing on the same consoles is said in one sentence.
    std::vector<std::pair<std::vector<std::uint32_t>, QStringList>> missing;
    for (const std::string_view type : searchedKinds) {
        auto consoles = search.without(type);
        if (consoles.empty()) {
            continue;
        }
        const auto same = std::ranges::find(missing, consoles, &decltype(missing)::value_type::first);
        if (same != missing.end()) {
            same->second << feedName(type);
        } else {
            missing.emplace_back(std::move(consoles), QStringList(feedNameAtStart(type)));
        }
    }
    for (const auto& [consoles, feeds] : missing) {
        //: What was not read, and the names of its consoles.
        sentences << Words::tr("%1 of %2 are missing.").arg(joinedList(feeds), namesOf(search, consoles));
    }
    return joined(sentences);
}

} // namespace lodestar
