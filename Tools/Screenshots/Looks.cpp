// SPDX-License-Identifier: Apache-2.0
#include "Tools/Screenshots/Looks.h"

#include "Controllers/REST/RESTHandler.h"
#include "Fleet/Watch.h"
#include "Simulator/SimulatorProcess.h"
#include "Tools/Screenshots/NightFleet.h"

#include <iterator>

namespace lodestar::scenes
{

void open(SceneStage& stage, const Look& look, QSize size)
{
    setMorningClock(false);
    Watch::shared().setSettings({});
    stage.show(size, look.consoles);
    look.prepare(stage);
}

std::vector<Look> everyLook()
{
    std::vector<Look> every;
    for (std::vector<Look>& looks : std::vector{
             consoleLooks(), editorLooks(), dashboardLooks(), inventoryLooks(), groupedLooks(), eventAndGroupLooks(),
             performanceLooks(), aboutLooks(), lockLooks(), feedbackLooks(), attentionLooks(), findLooks(),
             connectionLooks(), copyLooks(), fleetSheetLooks(), keyLooks(), wideLooks()}) {
        std::ranges::move(looks, std::back_inserter(every));
    }
    return every;
}

CorvelRef simulatedConsole(const SceneStage& stage, const simulator::SimulatorProcess& simulated)
{
    CorvelRef corvel = demoConsole();
    corvel->setDemo(false);
    corvel->setAddress(simulated.address());
    corvel->setUsername(simulated.user());
    corvel->setPassword(simulated.password());
    corvel->completedFetch = false;
    const auto logon = RESTHandler::sharedInstance().login(corvel, CheckToken::Yes);
    stage.waitFor([&] { return !logon.isPending(); });
    return corvel;
}

void search(FeedListViewController& list, const char* text)
{
    list.showSearchBar();
    list.searchBar()->setText(QString::fromLatin1(text));
}

void pressRow(const SceneStage& stage, int belowFirst)
{
    stage.settle();
    for (QQuickItem* table : stage.items(QStringLiteral("CardTable"))) {
        // A table that gets the focus has chosen its first row.
        table->setProperty("currentIndex", table->property("currentIndex").toInt() + belowFirst);
    }
}

std::string entryOf(const std::string& type, const std::string& content)
{
    return "<entry><published>2026-03-12T09:41:00.000Z</published><content><" + type + ">" + content + "</" + type +
           "></content></entry>";
}

} // namespace lodestar::scenes
