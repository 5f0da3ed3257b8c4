// SPDX-License-Identifier: Apache-2.0
#include "Views/FleetSheet/FleetRowCell.h"

#include "Kit/Core/LineText.h"
#include "Views/Common/CellText.h"
#include "Views/FleetSheet/FleetSheetText.h"

namespace lodestar
{
namespace
{

/// A sheet may hold anything; no more of it than a row can show is laid out.
QString drawn(const std::string& text)
{
    constexpr qsizetype longest = 300;
    return oneLine(shortened(QString::fromStdString(text), longest));
}

} // namespace

FleetRowCell FleetRowCell::of(const FleetImport::Row& row)
{
    FleetRowCell cell;
    cell.name = drawn(row.sheet.name);
    cell.address = drawn(row.sheet.address);
    cell.word = FleetSheetText::stateWord(row.state);
    cell.state = FleetSheetText::roleOf(row.state);
    cell.working = row.state == FleetImport::State::Verifying || row.state == FleetImport::State::Gathering;
    cell.note = FleetSheetText::note(row);
    cell.incomplete = row.missingFeeds > 0;
    return cell;
}

FleetRowCell FleetRowCell::ofUnusable(const SheetRow& row)
{
    FleetRowCell cell;
    cell.name = FleetSheetText::unusable(row);
    cell.address = drawn(row.name);
    cell.note = row.address == row.name ? QString() : drawn(row.address);
    return cell;
}

QString FleetRowCell::accessibleText() const
{
    return action.isEmpty() ? spoken({name, word, note, address}) : action;
}

} // namespace lodestar
