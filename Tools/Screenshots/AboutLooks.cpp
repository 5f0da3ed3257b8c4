// SPDX-License-Identifier: Apache-2.0
#include "Application/IntroView.h"
#include "Tools/Screenshots/Looks.h"

namespace lodestar::scenes
{
namespace
{

std::function<void(SceneStage&)> opening(Scene<> scene)
{
    return [scene](SceneStage& stage) { stage.open(scene, {}); };
}

std::function<void(SceneStage&)> openingAtEnd(Scene<> scene)
{
    return [scene](SceneStage& stage) {
        stage.open(scene, {});
        stage.settle();
        for (QQuickItem* list : stage.items("QQuickListView")) {
            QMetaObject::invokeMethod(list, "positionViewAtEnd");
            list->setProperty("contentY",
                              list->property("contentY").toDouble() + list->property("bottomMargin").toDouble());
        }
    };
}

std::function<void(SceneStage&)> tourAt(int page)
{
    return [page](SceneStage& stage) {
        IntroView::showIntroViewInView(stage.tabs(), {});
        stage.settle(60);
        stage.tabs().intro()->pageControl()->setCurrentPage(page);
        stage.settle(600);
    };
}

} // namespace

std::vector<Look> aboutLooks()
{
    return {
        {"release-notes", fleet(), opening(Scenes::versionViewController), true},
        {"release-notes-end", fleet(), openingAtEnd(Scenes::versionViewController)},
        {"license-agreement", fleet(), opening(Scenes::OrnisLicenseViewController), true},
        {"open-source-licenses", fleet(), opening(Scenes::openSourceViewController), true},
        {"open-source-licenses-end", fleet(), openingAtEnd(Scenes::openSourceViewController)},
        {"intro-tour", fleet(), tourAt(0), true},
        {"intro-tour-last", fleet(), tourAt(5)},
    };
}

} // namespace lodestar::scenes
