// SPDX-License-Identifier: Apache-2.0
#include "Application/FeedbackSupport.h"

#include "Application/FeedbackWindow.h"
#include "Application/Model/Corvel.h"
#include "Controllers/REST/RESTHandler.h"
#include "Feedback/CrashCapture.h"
#include "Feedback/ReportSender.h"
#include "Feedback/UI/FeedbackHost.h"
#include "Feedback/UI/ScreenGrabber.h"
#include "Feedback/VireoLogger.h"
#include "Platform/Queues/DispatchQueue.h"
#include "Platform/UserDefaults.h"

#include <QInputDevice>
#include <QStandardPaths>

#include <algorithm>

namespace lodestar
{
namespace
{

constexpr std::string_view ownFile = "Shared/Application/FeedbackSupport";

std::string crashFolder(const QString& dataFolder)
{
    return (dataFolder + QStringLiteral("/Crashes")).toStdString();
}

/// Every password and session key in use.
std::vector<std::string> secretsInUse()
{
    std::vector<std::string> secrets;
    for (const CorvelRef& corvel : RESTHandler::sharedInstance().corvelList()) {
        const auto key = UserDefaults::standard().stringForKey(corvel->address().value_or(std::string()));
        for (const std::optional<std::string>& secret : {corvel->password(), key}) {
            if (secret) {
                secrets.push_back(*secret);
            }
        }
    }
    return secrets;
}

bool hasTouchScreen()
{
    const QList<const QInputDevice*> devices = QInputDevice::devices();
    return std::any_of(devices.begin(), devices.end(), [](const QInputDevice* device) {
        return device->type() == QInputDevice::DeviceType::TouchScreen;
    });
}

FeedbackSetup setupFor(const QString& dataFolder, const QString& version)
{
    return {.store = ReportStore((dataFolder + QStringLiteral("/Reports")).toStdString()),
            .crashFolder = crashFolder(dataFolder),
            .logFolder = (dataFolder + QStringLiteral("/Logs")).toStdString(),
            .exportFolder = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation).toStdString(),
            .version = version.toStdString(),
            .address = feedbackAddress(),
            .secrets = &secretsInUse};
}

} // namespace

void FeedbackSupport::captureCrashes(const QString& dataFolder, const QString& version)
{
    const Result<void> installed =
        CrashCapture::install(crashFolder(dataFolder), {version.toStdString(), VireoLogger::sessionIdentifier()});
    if (!installed) {
        LODESTAR_LOG(ownFile, "captureCrashes", "crashes go unrecorded: {}", description(installed.error()));
    }
}

FeedbackSupport::FeedbackSupport(FeedbackWindow& window, const QString& dataFolder, const QString& version)
{
    window.feedbackHost()->setUp(setupFor(dataFolder, version));
    VireoLogger::setFeedbackPresenter([&window] {
        // A picture of the feedback screen itself would be of no use.
        if (window.feedbackHost()->screen() == nullptr) {
            window.feedbackHost()->present(grabCovered(window));
        }
    });
    // What stands on a desk is not shaken: there the console list has a button.
    VireoLogger::settings().offersEntry = !hasTouchScreen();
    QObject::connect(
        &window, &QQuickWindow::frameSwapped, &window, [this, &window] { startAfterFirstFrame(window); },
        static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
}

FeedbackSupport::~FeedbackSupport()
{
    VireoLogger::setFeedbackPresenter({});
}

void FeedbackSupport::startAfterFirstFrame(FeedbackWindow& window)
{
    DispatchQueue::globalBackground().async([] { CrashCapture::recordModules(); });
    window.feedbackHost()->offerCrashes();
    if (VireoLogger::settings().reportOnShake) {
        m_sensor = std::make_unique<ShakeSensor>([&window] {
            window.motionBegan(FeedbackWindow::EventType::Motion, FeedbackWindow::EventSubtype::MotionShake);
        });
    }
}

} // namespace lodestar
