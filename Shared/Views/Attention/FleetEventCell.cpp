// SPDX-License-Identifier: Apache-2.0
#include "Views/Attention/FleetEventCell.h"

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
    title.text = QString::fromStdString(event.event.title());
    title.match = match;
    if (event.lastReported) {
        moment = AgeText::moment(WallTime(std::chrono::seconds(*event.lastReported)), now);
    }
    seconds = textOf(event.event.lastReported());
    console = QString::fromStdString(event.console);
    const QString state = isolated(textOf(event.event.problemState()));
    const QString callsHome = event.callsHome ? Words::tr("call home") : QString();
    status = spoken({textOf(event.event.problemState()).isEmpty() ? QString() : state, callsHome});
}

QString FleetEventCell::accessibleText() const
{
    return spoken({title.text, status, moment.isEmpty() ? seconds : moment, console});
}

} // namespace lodestar
