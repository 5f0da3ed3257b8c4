// SPDX-License-Identifier: Apache-2.0
#include "Views/Common/FeedName.h"

#include "Inventory/Feed.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace lodestar
{
namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(lodestar::FeedName)
};

/// Of names and texts in a row, no more than a row can show is laid out.
constexpr qsizetype longestRowText = 300;

struct Within {
    const char* text;
    const char* comment = nullptr;
};
struct Name {
    std::string_view type;
    Within within;
    const char* atStart;
};

constexpr std::array<Name, feedTable.size()> names = {{
    {ObjectType::ManagementConsole,
     {QT_TRANSLATE_NOOP("lodestar::FeedName", "console details")},
     QT_TRANSLATE_NOOP("lodestar::FeedName", "Console details")},
    {ObjectType::ManagedSystem,
     {QT_TRANSLATE_NOOP("lodestar::FeedName", "systems")},
     QT_TRANSLATE_NOOP("lodestar::FeedName", "Systems")},
    {ObjectType::VirtualIOServer, QT_TRANSLATE_NOOP3("lodestar::FeedName", "IO servers", "within a sentence"),
     QT_TRANSLATE_NOOP("lodestar::FeedName", "IO servers")},
    {ObjectType::LogicalPartition,
     {QT_TRANSLATE_NOOP("lodestar::FeedName", "partitions")},
     QT_TRANSLATE_NOOP("lodestar::FeedName", "Partitions")},
    {ObjectType::ServiceableEvent,
     {QT_TRANSLATE_NOOP("lodestar::FeedName", "events")},
     QT_TRANSLATE_NOOP("lodestar::FeedName", "Events")},
    {ObjectType::Group,
     {QT_TRANSLATE_NOOP("lodestar::FeedName", "resource groups")},
     QT_TRANSLATE_NOOP("lodestar::FeedName", "Resource groups")},
}};

const Name* nameOf(std::string_view type)
{
    const auto* const found = std::ranges::find(names, type, &Name::type);
    return found != names.end() ? found : nullptr;
}

/// A list has no room for the groups' whole name.
QString nameInList(std::string_view type)
{
    return type == ObjectType::Group ? Words::tr("groups") : feedName(type);
}

} // namespace

QString feedName(std::string_view type)
{
    const Name* const name = nameOf(type);
    return name != nullptr ? Words::tr(name->within.text, name->within.comment) : QString();
}

QString feedNameAtStart(std::string_view type)
{
    const Name* const name = nameOf(type);
    return name != nullptr ? Words::tr(name->atStart) : QString();
}

QString feedsNotRead(const std::vector<std::string_view>& types)
{
    switch (types.size()) {
    case 0:
        return {};
    case 1:
        //: %1 the name of a feed, as in "Partitions"
        return Words::tr("%1 not read").arg(feedNameAtStart(types.front()));
    case 2:
        //: %1 and %2 names of feeds, as in "Partitions" and "groups"
        return Words::tr("%1 and %2 not read").arg(feedNameAtStart(types[0]), nameInList(types[1]));
    case feedTable.size():
        return Words::tr("Nothing of it could be read");
    default:
        //: %n of the six feeds
        return Words::tr("%Ln of 6 feeds not read", nullptr, static_cast<int>(types.size()));
    }
}

QString joinedList(const QStringList& names)
{
    switch (names.size()) {
    case 0:
        return {};
    case 1:
        return names[0];
    case 2:
        return Words::tr("%1 and %2").arg(names[0], names[1]);
    case 3:
        return Words::tr("%1, %2 and %3").arg(names[0], names[1], names[2]);
    default:
        //: %1 and %2 names, %n how many more there are
        return Words::tr("%1, %2 and %Ln more", nullptr, static_cast<int>(names.size()) - 2).arg(names[0], names[1]);
    }
}

QString rowText(const std::string& text)
{
    QString start = QString::fromStdString(text).left(longestRowText);
    if (!start.isEmpty() && start.back().isHighSurrogate()) {
        start.chop(1);
    }
    return oneLine(start);
}

} // namespace lodestar
