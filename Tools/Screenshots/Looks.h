// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Tools/Stage/SceneStage.h"

namespace lodestar::simulator
{
class SimulatorProcess;
}

namespace lodestar::scenes
{

/// A screen that is to be photographed.
struct Look {
    const char* name;
    std::vector<ConsoleLook> consoles;
    std::function<void(SceneStage&)> prepare;
    /// Whether the screen is also drawn wide, dark, in large text and mirrored.
    bool isMain = false;
    /// Whether the screen is also drawn on a phone that lies, as above.
    bool lies = false;
    /// Whether the screen is also drawn in wide windows, as above, where two screens stand side by side.
    bool isWide = false;
};

/// Opens the screen in a window of this size in points, and undoes what the look before left: a clock that stands,
/// Watch.
void open(SceneStage& stage, const Look& look, QSize size);
/// All those below.
std::vector<Look> everyLook();

/// A simulated console with the demonstration's name, which is logged on and has fetched no feeds yet. No list holds
/// it.
CorvelRef simulatedConsole(const SceneStage& stage, const simulator::SimulatorProcess& simulated);
void search(FeedListViewController& list, const char* text);
/// Makes the row so many below the first one look pressed, as a press does that brings up the row's menu.
void pressRow(const SceneStage& stage, int belowFirst);
/// One entry of a feed, with an object of the type.
std::string entryOf(const std::string& type, const std::string& content);

/// The list of consoles and its editor.
std::vector<Look> consoleLooks();
std::vector<Look> editorLooks();
std::vector<Look> dashboardLooks();
/// Release notes, licence agreement, open-source notices and the tour.
std::vector<Look> aboutLooks();
/// The feedback screens, over the console list.
std::vector<Look> feedbackLooks();
/// The menus, lists and details of a console's inventory.
std::vector<Look> inventoryLooks();
/// The lists by managed system, and their details.
std::vector<Look> groupedLooks();
/// Serviceable events, and the resource groups of a simulated console.
std::vector<Look> eventAndGroupLooks();
/// The performance of a managed system.
std::vector<Look> performanceLooks();

/// The tab Attention with its three segments and its sheets, and the watch.
std::vector<Look> attentionLooks();
/// Find, with and without a text.
std::vector<Look> findLooks();
/// The connections of consoles, and the marks that tell how old and how complete other screens are.
std::vector<Look> connectionLooks();

/// What is copied, and the service report.
std::vector<Look> copyLooks();

/// The first run, and fleet sheets from the file to the results.
std::vector<Look> fleetSheetLooks();
/// Two screens side by side.
std::vector<Look> wideLooks();
/// The help for the keyboard, the commands, what the pointer and the keyboard point out, and the demonstration alone.
std::vector<Look> keyLooks();
/// The passcode screen, the settings and the passcode sheet.
std::vector<Look> lockLooks();

} // namespace lodestar::scenes
