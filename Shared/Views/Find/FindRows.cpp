// SPDX-License-Identifier: Apache-2.0
#include "Views/Find/FindRows.h"

#include "Fleet/Registry.h"
#include "Inventory/FoldedText.h"
#include "Views/Attention/ObjectScenes.h"
#include "Views/Common/CellText.h"
#include "Views/Common/FeedName.h"
#include "Views/Common/Scenes.h"
#include "Views/Find/FindText.h"
#include "Views/Find/FoundFields.h"

#include <functional>

namespace lodestar
{
namespace
{

/// Of a long text, what stands before the match is cut to about so many letters.
constexpr qsizetype mostBefore = 24;
/// No more of a text is laid out than a row can show.
constexpr qsizetype longestText = 300;

/// The part of the text that the wanted text matches, as the text has it; empty for none.
QString matchIn(const QString& text, const std::string& wanted)
{
    const std::string bytes = text.toStdString();
    const auto part = firstFoldedMatch(bytes, wanted);
    return part ? QString::fromStdString(bytes.substr(part->start, part->length)) : QString();
}

/// The text from a little before the match on, so that a row's end does not cut the match off.
QString around(const QString& text, const QString& match)
{
    const qsizetype at = text.indexOf(match);
    if (at <= mostBefore) {
        return text.left(longestText);
    }
    qsizetype start = text.indexOf(u' ', at - mostBefore);
    start = start < 0 || start >= at ? at - mostBefore : start + 1;
    if (text.at(start).isLowSurrogate()) {
        ++start;
    }
    return QChar(u'…') + text.mid(start, longestText);
}

CellLabel marked(const QString& text, const QString& match)
{
    return {.text = match.isEmpty() ? text.left(longestText) : around(text, match), .match = match};
}

/// The line below a name that does not have the text itself: the field that has it.
CellLabel lineHaving(const FoundFields& fields, const std::string& wanted)
{
    const QString usual = matchIn(fields.usual, wanted);
    if (!usual.isEmpty() || !matchIn(fields.state.text, wanted).isEmpty()) {
        return marked(fields.usual, usual);
    }
    for (const QString& other : fields.others) {
        if (const QString match = matchIn(other, wanted); !match.isEmpty()) {
            return marked(other, match);
        }
    }
    return marked(fields.usual, {});
}

} // namespace

FindCell cellOf(const FleetSearch& search, const FoundObject& found, const std::string& wanted)
{
    const FoundFields fields = fieldsOf(search, found);
    const QString name = oneLine(fields.name.left(longestText));
    const QString match = matchIn(name, wanted);
    FindCell cell;
    cell.picture = fields.picture;
    cell.pictureSize = fields.pictureSize;
    cell.name = {.text = name, .match = match};
    cell.line = match.isEmpty() ? lineHaving(fields, wanted) : marked(fields.usual, {});
    cell.state = fields.state;
    if (search.searchedOf(found).kindOf(found.object) != consoleKind) {
        cell.console = oneLine(QString::fromStdString(search.consoleOf(found).name));
    }
    cell.leadsOn = true;
    cell.accessibleText = spoken({name, cell.state.text, cell.line.text, cell.console});
    return cell;
}

FindCell moreCell(const FleetSearch& search, std::size_t number)
{
    FindCell cell;
    cell.more = FindText::showAll(search, number);
    cell.accessibleText = cell.more;
    return cell;
}

std::size_t keyOf(const FleetSearch& search, const FoundObject& found)
{
    const std::size_t console = std::hash<const Corvel*>()(search.consoleOf(found).corvel.get());
    return console * 0x9e3779b97f4a7c15U + found.object + 1;
}

void openFound(const ViewController& from, const FleetSearch& search, const FoundObject& found)
{
    const CorvelRef& corvel = search.consoleOf(found).corvel;
    if (!isRegistered(corvel)) {
        return;
    }
    const SearchedConsole& searched = search.searchedOf(found);
    const std::size_t kind = searched.kindOf(found.object);
    if (kind != consoleKind) {
        openObject(from, corvel, searchedKinds.at(kind), searched.elementOf(found.object));
    } else if (corvel->completedFetch && corvel->isOnline) {
        openScene(from, Scenes::corvelTasksViewController, corvel);
    } else {
        openScene(from, Scenes::connectionView, corvel);
    }
}

} // namespace lodestar
