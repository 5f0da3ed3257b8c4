// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/SceneHost.h"
#include "Tests/Scenes/SceneTest.h"

#include <QQmlContext>

#include <atomic>
#include <private/qhooks_p.h>

namespace lodestar::scenes
{
namespace
{

std::atomic<qsizetype> liveObjects = 0;

/// How often each is opened. 200 times, as LODESTAR_OPENINGS can ask for, take minutes.
const int times = qEnvironmentVariable("LODESTAR_OPENINGS", "20").toInt();

using EverySceneTest = SceneTest;

TEST_F(EverySceneTest, OpensWithoutAWarningAndLeavesNoObjectBehind)
{
    const auto open = [this](ViewController& screen) {
        SceneHost host(stage.window().contentItem());
        QQmlEngine::setContextForObject(&host, qmlContext(&stage.window()));
        host.setSize(QSizeF(stage.window().size()));
        host.setProperty("reportsAppearance", true);
        const std::shared_ptr<ViewController> stack =
            qobject_cast<TabBarController*>(&screen) != nullptr
                ? screen.shared_from_this()
                : makeController<NavigationController>(screen.shared_from_this());
        host.setController(stack.get());
        QCoreApplication::processEvents();
        EXPECT_NE(host.scene(), nullptr);
        host.setController(nullptr);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    // After what scripts let go of has gone.
    const auto countLiving = [this] {
        qmlEngine(&stage.window())->collectGarbage();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return liveObjects.load();
    };
    stage.show({390, 844}, {});
    const CorvelRef corvel = demoConsole();
    // All objects of the process that are made from now on and still live.
    qtHookData[QHooks::AddQObject] = reinterpret_cast<quintptr>(+[](QObject*) { ++liveObjects; });
    qtHookData[QHooks::RemoveQObject] = reinterpret_cast<quintptr>(+[](QObject*) { --liveObjects; });
    std::vector<AnyScene> scenes = everyScene(corvel);
    for (const Scene<> scene : {Scenes::mainView, Scenes::loginViewController}) {
        scenes.push_back({scene.identifier, [scene] { return Storyboard::main().instantiateViewController(scene); }});
    }
    for (const AnyScene& scene : scenes) {
        // The first ones fill what is kept for good.
        qsizetype before = 0;
        for (int time = -3; time < times; ++time) {
            open(*scene.make());
            if (time == -1) {
                stage.settle(100);
                before = countLiving();
            }
        }
        // A single object may be one that is made late and kept for good; what is left behind comes with every opening.
        EXPECT_TRUE(stage.waitFor([&] { return countLiving() < before + times; })) << scene.name;
    }
}

} // namespace
} // namespace lodestar::scenes
