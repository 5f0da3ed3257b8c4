// SPDX-License-Identifier: Apache-2.0
#include "Fleet/FleetSheet.h"
#include "Simulator/SimulatorProcess.h"
#include "Tools/Screenshots/Looks.h"
#include "Views/FleetSheet/FleetChooseViewController.h"
#include "Views/FleetSheet/FleetVerifyViewController.h"

#include <fmt/format.h>

namespace lodestar::scenes
{
namespace
{

constexpr int simulated = 14;

/// Twelve consoles of which most are good; the last two keep somebody waiting.
simulator::SimulatorProcess& consoles()
{
    static simulator::SimulatorProcess process(
        {.consoles = simulated,
         .systems = 1,
         .faults = {"refuseLogon:1", "refuseFeed:Group:3", "refuseFeed:VirtualIOServer:3", "stallFeed:Group:12",
                    "stallFeed:Logon:13"}});
    return process;
}

FleetFileInput file(const std::string& text)
{
    return {.name = QStringLiteral("fleet-2026.csv"),
            .bytes = std::make_shared<const Result<QByteArray>>(QByteArray::fromStdString(text))};
}

std::string nameOf(int row)
{
    constexpr int eastgates = 4;
    return row < eastgates ? fmt::format("Eastgate {}", row + 1) : fmt::format("Quayside {:02}", row - eastgates + 1);
}

/// Forty-eight new consoles of two users, some that are registered, and some that cannot be used.
std::string sheetText()
{
    std::string text = "Name,Address,User,Rack,Password\n";
    for (int i = 0; i < 48; ++i) {
        text += fmt::format("{0},corvel-{1}.quayside.example,{2},,\n", nameOf(i), i, i < 40 ? "oversight" : "monitor");
    }
    for (const ConsoleLook& console : fleet()) {
        text += fmt::format("{},{},oversight,,\n", console.name, console.address);
    }
    return text + "Millpond,,monitor,,\nQuayside 02,corvel-4.quayside.example,oversight,,\n,corvel-99.example,,,\n";
}

FleetChooseViewController& choose(SceneStage& stage, const std::string& text)
{
    auto& screen = *stage.open<FleetChooseViewController>(Scenes::fleetChooseView, file(text));
    stage.waitFor([&screen] { return !screen.foundLabel()->text().isEmpty(); });
    stage.settle();
    return screen;
}

void chooseAndType(SceneStage& stage)
{
    choose(stage, sheetText()).passwords()->at(0)->field()->setText(QStringLiteral("lantern-7-qy"));
    stage.settle(100);
}

/// Consoles that answer as the simulator's faults say, and one whose name is wrong.
std::shared_ptr<FleetImport> importOf(int rows)
{
    std::string text = "name,address,user\n";
    for (int i = 0; i < rows; ++i) {
        text +=
            fmt::format("{},{},{}\n", nameOf(i), i == 2 ? "127.255.255.254" : consoles().address(i), consoles().user());
    }
    text += fmt::format("{},corvel-11.quayside.exampel.invalid,{}\n", nameOf(rows), consoles().user());
    return std::make_shared<FleetImport>(
        readFleetSheet(text, {}).value(),
        std::map<std::string, std::string>{{consoles().user(), consoles().password()}});
}

void verify(SceneStage& stage, int rows, std::size_t tried)
{
    const auto fleet = importOf(rows);
    stage.open(Scenes::fleetVerifyView, fleet);
    stage.waitFor([&] { return fleet->tried() == tried; });
    stage.settle(2300);
}

void results(SceneStage& stage)
{
    constexpr int answering = simulated - 2;
    verify(stage, answering, answering + 1);
}

} // namespace

std::vector<Look> fleetSheetLooks()
{
    return {
        {"first-run", {}, [](SceneStage& /*stage*/) {}, true},
        {"fleet", fleet(), [](SceneStage& stage) { stage.open(Scenes::fleetSheetView, {}); }, true},
        {"fleet-choose", fleet(), chooseAndType, true},
        {"fleet-choose-no-sheet", fleet(), [](SceneStage& stage) { choose(stage, "corvel-a.example,oversight\n"); }},
        {"fleet-unusable", fleet(),
         [](SceneStage& stage) {
             choose(stage, sheetText()).openUnusable();
             stage.settle();
         },
         true},
        {"fleet-verify", fleet(), [](SceneStage& stage) { verify(stage, simulated, simulated - 1); }, true},
        {"fleet-results", fleet(), results, true},
        {"fleet-again", fleet(),
         [](SceneStage& stage) {
             results(stage);
             TableOutlet& table =
                 *qobject_cast<FleetVerifyViewController*>(stage.list().navigationController()->topViewController())
                      ->tableView();
             table.select(4);
             stage.settle();
         },
         true},
    };
}

} // namespace lodestar::scenes
