// SPDX-License-Identifier: Apache-2.0
#include "Tools/Screenshots/Looks.h"

namespace lodestar::scenes
{
namespace
{

DeltaCorvelViewController& filledEditor(SceneStage& stage)
{
    DeltaCorvelViewController& editor = *stage.openEditor();
    editor.nameField()->setText("Harbour C");
    editor.addressField()->setText("corvel-c.harbour.example");
    editor.usernameField()->setText("oversight");
    editor.passwordField()->setText("twelve-chars");
    return editor;
}

void showBusyEditor(SceneStage& stage, const char* message)
{
    DeltaCorvelViewController& editor = filledEditor(stage);
    for (FieldOutlet* field :
         {editor.nameField(), editor.addressField(), editor.usernameField(), editor.passwordField()}) {
        field->setEnabled(false);
    }
    editor.showStatusWithMessage(QString::fromLatin1(message));
}

std::vector<ConsoleLook> allIn(ConsoleLook::State state)
{
    std::vector<ConsoleLook> consoles = fleet();
    for (ConsoleLook& console : consoles) {
        console.state = state;
    }
    return consoles;
}

} // namespace

std::vector<Look> consoleLooks()
{
    const auto nothing = [](SceneStage&) {};
    std::vector<ConsoleLook> failing = allIn(ConsoleLook::State::Online);
    for (ConsoleLook& console : failing) {
        console.systemErrors = 1;
    }
    std::vector<ConsoleLook> fetching = allIn(ConsoleLook::State::Fetching);
    fetching.back().version.clear();
    return {
        {"consoles-online", fleet(), nothing, true},
        {"consoles-swiped", fleet(), [](SceneStage& stage) { stage.swipe(4); }, true},
        {"consoles-fetching", fetching, nothing},
        {"consoles-offline", allIn(ConsoleLook::State::Offline), nothing},
        {"consoles-error", failing, nothing},
        {"consoles-long-names", longNames(), nothing, true},
        {"consoles-empty", {}, nothing, true},
    };
}

std::vector<Look> editorLooks()
{
    std::vector<ConsoleLook> five = fleet();
    five.pop_back();
    const auto edit = [](SceneStage& stage) {
        stage.list().swipeTableCell(0, 1);
        qobject_cast<DeltaCorvelViewController*>(stage.list().semiModal()->controller())->saveCorvel();
    };
    return {
        {"console-editor-empty", five, [](SceneStage& stage) { stage.openEditor(); }},
        {"console-editor-filled", five, [](SceneStage& stage) { filledEditor(stage); }, true, true},
        {"console-editor-verifying", five, [](SceneStage& stage) { showBusyEditor(stage, "verifying..."); }, true},
        {"console-editor-gathering", five, [](SceneStage& stage) { showBusyEditor(stage, "gathering data..."); }},
        {"console-editor-error-fields", five, [](SceneStage& stage) { stage.openEditor()->saveCorvel(); }},
        {"console-editor-error-added", five, edit, true},
        {"console-editor-error-logon", five,
         [](SceneStage& stage) {
             DeltaCorvelViewController& editor = filledEditor(stage);
             editor.showStatusWithMessage("verifying...");
             editor.showStatusWithError("Could not connect to the server.");
         },
         true},
    };
}

std::vector<Look> dashboardLooks()
{
    std::vector<ConsoleLook> fetched = fleet();
    fetched[2].state = ConsoleLook::State::Offline;
    std::vector<ConsoleLook> loading = fleet();
    const auto open = [](SceneStage& stage) { stage.showDashboard(); };
    const auto openAndWait = [](SceneStage& stage) {
        stage.showDashboard();
        stage.waitFor([&] { return !stage.dashboard().corvelOnlineCount()->isHidden(); });
        stage.settle(1900);
    };
    return {
        {"dashboard-loading", loading, open},
        {"dashboard-growing", fetched, open},
        {"dashboard-drawn", fetched, openAndWait, true},
        {"dashboard-drawn-below", fetched,
         [openAndWait](SceneStage& stage) {
             openAndWait(stage);
             for (QQuickItem* page : stage.items("ScrollPage")) {
                 page->setProperty("contentY", qMax(0.0, page->property("contentHeight").toDouble() - page->height()));
             }
         }},
        {"dashboard-empty", {}, open, true},
    };
}

} // namespace lodestar::scenes
