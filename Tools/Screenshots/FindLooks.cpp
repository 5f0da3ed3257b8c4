// SPDX-License-Identifier: Apache-2.0
#include "Fleet/RecentSearches.h"
#include "Kit/Core/NavigationController.h"
#include "Tools/Screenshots/Looks.h"
#include "Tools/Screenshots/NightFleet.h"
#include "Views/Find/FindListController.h"
#include "Views/Find/FindViewController.h"

namespace lodestar::scenes
{
namespace
{

using Prepare = std::function<void(SceneStage&)>;

FindViewController& openFind(SceneStage& stage, const char* text)
{
    RecentSearches::clear();
    for (const char* recent : {"harbour", "ledger", "X417-2208"}) {
        RecentSearches::add(recent);
    }
    FindViewController& find = *stage.open<FindViewController>(Scenes::findView, FindInput{QString::fromUtf8(text)});
    stage.waitFor([&find] { return find.footerForSection(TableKind::Main, 0) != "" || find.tableView()->count() > 1; });
    stage.settle();
    return find;
}

Prepare finding(const char* text)
{
    return [text](SceneStage& stage) {
        showNight(stage, Night::Morning);
        openFind(stage, text);
    };
}

void showAll(SceneStage& stage)
{
    showNight(stage, Night::Morning);
    FindViewController& find = openFind(stage, "harbour");
    for (int section = 0; section < find.numberOfSections(TableKind::Main); ++section) {
        if (find.numberOfRowsInSection(TableKind::Main, section) > static_cast<int>(FindViewController::mostRows)) {
            find.didSelectRowAtIndexPath(TableKind::Main, {section, static_cast<int>(FindViewController::mostRows)});
            break;
        }
    }
    stage.settle();
}

} // namespace

std::vector<Look> findLooks()
{
    return {
        {"find-empty", {}, finding(""), true},
        {"find-results", {}, finding("harbour"), true},
        {"find-results-field", {}, finding("x417"), true},
        {"find-none", {}, finding("zephyr"), true},
        {"find-all", {}, showAll},
        {"find-nothing-read",
         {},
         [](SceneStage& stage) {
             showNoConsoles(stage);
             openFind(stage, "");
         }},
    };
}

} // namespace lodestar::scenes
