// SPDX-License-Identifier: Apache-2.0
#include "Fleet/Registry.h"
#include "Inventory/ManagedSystem.h"
#include "Inventory/ServiceableEvent.h"
#include "Kit/Core/Clipboard.h"
#include "Kit/Core/FileSaver.h"
#include "Tools/Screenshots/Looks.h"
#include "Tools/Screenshots/NightFleet.h"
#include "Views/Common/DetailViewController.h"
#include "Views/Report/ServiceReportController.h"

namespace lodestar::scenes
{
namespace
{

constexpr int harbourB = 1;

/// The details of the console's first object of the kind.
template <typename Kind>
DetailViewController& openFirst(SceneStage& stage, Scene<XMLElement> scene)
{
    showNight(stage, Night::Morning);
    const std::vector<Kind> records = recordsOf<Kind>(feedOfType(*corvelAtRow(harbourB), Kind::type));
    auto* const details = stage.open<DetailViewController>(scene, records.at(0).element());
    stage.settle();
    return *details;
}

DetailViewController& openEvent(SceneStage& stage)
{
    return openFirst<ServiceableEvent>(stage, Scenes::serviceableEventsDetail);
}

ServiceReportController& openReport(DetailViewController& details)
{
    details.openReport();
    return *qobject_cast<ServiceReportController*>(details.semiModal()->controller());
}

void showUnsaved(SceneStage& stage)
{
    ServiceReportController& report = openReport(openEvent(stage));
    FileSaver::answerWith([](const QString& name) { return QStringLiteral("/nowhere/") + name; });
    report.save();
    FileSaver::answerWith({});
}

void showSelection(SceneStage& stage)
{
    stage.open(Scenes::OrnisLicenseViewController, {});
    stage.settle();
    QMetaObject::invokeMethod(stage.items(QStringLiteral("ReadingPage")).at(0), "askToCopy", Q_ARG(int, 2),
                              Q_ARG(bool, false));
}

} // namespace

std::vector<Look> copyLooks()
{
    return {
        {"copy-menu",
         {},
         [](SceneStage& stage) {
             openEvent(stage).presentMenu(0, 4);
             pressRow(stage, 4);
         },
         true},
        {"copy-menu-long", {}, [](SceneStage& stage) { openEvent(stage).presentMenu(0, 15); }},
        {"copied",
         {},
         [](SceneStage& stage) {
             openEvent(stage).copyValue(0, 4);
             stage.settle();
         },
         true},
        {"service-report", {}, [](SceneStage& stage) { openReport(openEvent(stage)); }, true, true},
        {"service-report-markdown", {}, [](SceneStage& stage) { openReport(openEvent(stage)).setMarkdown(true); }},
        {"service-report-system",
         {},
         [](SceneStage& stage) {
             openReport(openFirst<ManagedSystem>(stage, Scenes::managedSystemInfo)).setLeavesOutAddresses(false);
         }},
        {"service-report-unsaved", {}, showUnsaved, true},
        {"license-agreement-selected", fleet(), showSelection, true},
    };
}

} // namespace lodestar::scenes
