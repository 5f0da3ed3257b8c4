// SPDX-License-Identifier: Apache-2.0
#include "Views/Attention/FleetEventCell.h"

#include "Kit/Core/Sentence.h"
#include "Views/Attention/FleetEventList.h"
#include "Views/Common/AgeText.h"
#include "Views/Common/CellText.h"
#include "Views/Common/FeedName.h"

#include <QCoreApplication>

namespace lodestar
{
namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(lodestar::FleetEventCell)
};

} // namespace

FleetEventCell::FleetEventCell(const FleetEvent& event, WallTime now, const QString& match)
{
    title.text = rowText(event.event.title());
    title.match = match;
    console = rowText(event.console);
    const auto holdsMatch = [&match](const QString& text) { return text.contains(match, Qt::CaseInsensitive); };
    if (!match.isEmpty() && !holdsMatch(title.text) && !holdsMatch(console)) {
        for (const std::string& text : searchedDetails(event)) {
            if (found.text.isEmpty() && holdsMatch(QString::fromStdString(text))) {
                found = {.text = rowText(text), .match = match};
            }
        }
    }
    if (const auto reported = wallTimeOf(event.lastReported)) {
        moment = AgeText::moment(*reported, now);
    }
    seconds = rowText(event.event.lastReported().value_or(""));
    const QString callsHome = event.callsHome ? Words::tr("call home") : QString();
    status = Sentence::joined({isolated(rowText(event.event.problemState().value_or(""))), callsHome});
}

QString FleetEventCell::accessibleText() const
{
    return spoken({title.text, found.text, status, moment.isEmpty() ? seconds : moment, console});
}

} // namespace lodestar
