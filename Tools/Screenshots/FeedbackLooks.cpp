// SPDX-License-Identifier: Apache-2.0
#include "Feedback/UI/FeedbackViewController.h"
#include "Feedback/UI/ScreenGrabber.h"
#include "Kit/Core/NavigationController.h"
#include "Tools/Screenshots/Looks.h"

#include <QDir>
#include <QFile>

#include <cmath>

namespace lodestar::scenes
{
namespace
{

FeedbackViewController& openFeedback(SceneStage& stage)
{
    stage.settle();
    stage.feedback().present(grabCovered(stage.window()));
    stage.waitFor([&stage] { return stage.item("sketchView") != nullptr; });
    auto* const stack = qobject_cast<NavigationController*>(stage.feedback().screen());
    return *qobject_cast<FeedbackViewController*>(stack->rootViewController());
}

/// Draws a ring around the second console's state and an arrow to it.
void drawOn(Sketch& sketch)
{
    const QSizeF size = sketch.pictureSize();
    const double unit = size.width() / 390;
    const QPointF middle(100 * unit, 225 * unit);
    sketch.begin(middle + QPointF(70 * unit, 0));
    for (double angle = 0; angle < 2 * M_PI; angle += 0.1) {
        sketch.extend(middle + QPointF(70 * unit * std::cos(angle), 26 * unit * std::sin(angle)));
    }
    sketch.extend(middle + QPointF(70 * unit, 0));
    sketch.end();
    sketch.begin(middle + QPointF(160 * unit, 90 * unit));
    sketch.extend(middle + QPointF(76 * unit, 30 * unit));
    sketch.end();
    sketch.setTool(Sketch::Tool::Cover);
    sketch.begin({20 * unit, 420 * unit});
    sketch.extend({200 * unit, 450 * unit});
    sketch.end();
    sketch.setTool(Sketch::Tool::Pen);
}

const char* const logOfThisRun = "2026-03-12T16:39:58.041Z 2 0 [411] Shared/Views/Corvels/CorvelListViewController:61 "
                                 "-[CorvelListViewController viewDidLoad] CorvelListViewController instantiation\n"
                                 "2026-03-12T16:40:12.306Z 2 0 [414] Shared/Views/Corvels/CorvelListViewController:133 "
                                 "-[CorvelListViewController refresh] Error: The connection timed out. - > login\n";

void writeLog(const SceneStage& stage)
{
    const QDir folder(QString::fromStdString(stage.reports().folder()) + QStringLiteral("/../Logs"));
    folder.mkpath(QStringLiteral("."));
    QFile file(folder.filePath(QStringLiteral("lodestar.log")));
    if (file.open(QIODevice::WriteOnly)) {
        file.write(logOfThisRun);
    }
}

void saveReports(const SceneStage& stage)
{
    for (const Report& old : stage.reports().list()) {
        stage.reports().remove(old.identifier).ok();
    }
    ReportBundle crash;
    crash.kind = Report::Kind::Crash;
    crash.made = "2026-03-11T08:14:05Z";
    crash.version = "1.0.0";
    crash.system = "Debian GNU/Linux 12 (bookworm), Linux 6.1.0, aarch64";
    crash.session = "59b1c3d3a9be44f0";
    crash.note = "The application ended by SIGSEGV at address 0x10.";
    crash.crash = "The application ended by SIGSEGV at address 0x10.\n\n"
                  " 0  lodestar+0x4af210  lodestar::Feed::root() const (Feed.cpp:41)\n"
                  " 1  lodestar+0x4b1188  lodestar::MSListViewController::reload() (MSListViewController.cpp:88)\n";
    crash.log = "2026-03-11T08:14:04.112Z 2 0 [411] Shared/Views/ManagedSystems/MSListViewController:44 viewDidLoad "
                "MSListViewController instantiation\n";
    stage.reports().save(crash).ok();
    ReportBundle feedback = crash;
    feedback.kind = Report::Kind::Feedback;
    feedback.made = "2026-03-12T16:40:51Z";
    feedback.note = "Harbour B says Error, but every system in its list is operating.";
    stage.reports().save(feedback).ok();
}

void openReports(SceneStage& stage)
{
    FeedbackViewController& feedback = openFeedback(stage);
    saveReports(stage);
    feedback.showReports();
    stage.settle();
}

} // namespace

std::vector<Look> feedbackLooks()
{
    return {
        {"feedback", fleet(),
         [](SceneStage& stage) {
             FeedbackViewController& feedback = openFeedback(stage);
             feedback.noteView()->setText("Harbour B says Error, but every system in its list is operating.");
             drawOn(*feedback.sketch());
             stage.settle(50);
         },
         true},
        {"feedback-what-is-saved", fleet(),
         [](SceneStage& stage) {
             FeedbackViewController& feedback = openFeedback(stage);
             feedback.noteView()->setText("Harbour B says Error, but every system in its list is operating.");
             writeLog(stage);
             feedback.showText();
             stage.waitFor([&feedback] { return !feedback.isBusy(); });
             stage.settle();
         }},
        {"feedback-reports", fleet(), &openReports, true},
        {"feedback-report", fleet(),
         [](SceneStage& stage) {
             openReports(stage);
             for (QQuickItem* row : stage.items("MenuRow")) {
                 if (row->property("text").toString().startsWith("Crash")) {
                     QMetaObject::invokeMethod(row, "clicked");
                     break;
                 }
             }
             stage.settle();
         }},
        {"feedback-crash-offer", fleet(),
         [](SceneStage& stage) {
             saveReports(stage);
             stage.feedback().offerCrashes();
             stage.waitFor([&stage] { return stage.feedback().alert()->isPresented(); });
             stage.settle();
         },
         true},
    };
}

} // namespace lodestar::scenes
