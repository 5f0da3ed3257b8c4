// SPDX-License-Identifier: Apache-2.0
#include "Application/FeedbackSupport.h"

#include "Application/FeedbackWindow.h"
#include "Application/KeptState.h"
#include "Application/Model/Corvel.h"
#include "Application/Model/Setting.h"
#include "Controllers/REST/RESTHandler.h"
#include "Feedback/CrashCapture.h"
#include "Feedback/CrashCollector.h"
#include "Feedback/ReportSender.h"
#include "Feedback/UI/FeedbackHost.h"
#include "Feedback/UI/ScreenGrabber.h"
#include "Feedback/VireoLogger.h"
#include "Platform/NotificationCenter.h"
#include "Platform/Queues/DispatchQueue.h"
#include "Platform/UserDefaults.h"
#include "Platform/UtcStamp.h"

#include <QPointer>
#include <QStandardPaths>

#include <ctime>

namespace lodestar
{
namespace
{

constexpr std::string_view ownFile = "Shared/Application/FeedbackSupport";

/// The process's data folder. Empty until it is set; nothing is kept before that.
QString& keptIn()
{
    static QString folder;
    return folder;
}

/// Null while no window for it exists.
QPointer<FeedbackHost>& currentHost()
{
    static QPointer<FeedbackHost> host;
    return host;
}

std::string crashFolder(const QString& dataFolder)
{
    return (dataFolder + QStringLiteral("/Crashes")).toStdString();
}

ReportStore reportStore(const QString& dataFolder)
{
    return ReportStore((dataFolder + QStringLiteral("/Reports")).toStdString());
}

/// The key under which a run notes that the device has a shake sensor. The next run's first screen depends on the note,
/// because that run looks for the sensor only after drawing the screen.
constexpr auto shakenKey = "shaken";

FeedbackSetup setupFor(const QString& dataFolder, const QString& version)
{
    return {.store = reportStore(dataFolder),
            .crashFolder = crashFolder(dataFolder),
            .logFolder = (dataFolder + QStringLiteral("/Logs")).toStdString(),
            .exportFolder = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation).toStdString(),
            .address = feedbackAddress(),
            .facts =
                [version = version.toStdString()] {
                    Report report;
                    report.made = utcStamp(std::time(nullptr));
                    report.version = version;
                    report.system = systemDescription();
                    report.session = feedbackSessionIdentifier();
                    return report;
                },
            .secrets = &FeedbackSupport::secretsInUse};
}

} // namespace

void FeedbackSupport::keepIn(const QString& dataFolder)
{
    keptIn() = dataFolder;
}

void FeedbackSupport::captureCrashes(const QString& dataFolder, const QString& version)
{
    keepIn(dataFolder);
    const Result<void> installed = CrashCapture::install(crashFolder(dataFolder), version.toStdString());
    if (!installed) {
        LODESTAR_LOG(ownFile, "captureCrashes", "crashes go unrecorded: {}", description(installed.error()));
    }
}

void FeedbackSupport::forgetReports()
{
    if (currentHost()) {
        currentHost()->forget();
    }
    if (keptIn().isEmpty()) {
        return;
    }
    forgetCrashes(crashFolder(keptIn()));
    VireoLogger::forget();
    if (const Result<void> removed = reportStore(keptIn()).removeAll(); !removed) {
        LODESTAR_LOG(ownFile, "forgetReports", "a report could not be deleted: {}", description(removed.error()));
    }
}

std::vector<std::string> FeedbackSupport::secretsInUse()
{
    std::vector<std::string> secrets;
    const auto list = RESTHandler::sharedInstance().corvelListSnapshot();
    for (const CorvelRef& corvel : *list) {
        if (const auto password = corvel->password()) {
            secrets.push_back(*password);
        }
        if (const auto key = UserDefaults::standard().stringForKey(corvel->address().value_or(""))) {
            secrets.push_back(*key);
        }
    }
    // A session key may outlive its console, so take every kept key.
    for (const std::string& name : UserDefaults::standard().allKeys()) {
        const auto key = UserDefaults::standard().stringForKey(name);
        if (key && !Setting::isOne(name)) {
            secrets.push_back(*key);
        }
    }
    return secrets;
}

FeedbackSupport::FeedbackSupport(FeedbackWindow& window, const QString& dataFolder, const QString& version)
{
    keepIn(dataFolder);
    currentHost() = window.feedbackHost();
    window.feedbackHost()->setUp(setupFor(dataFolder, version));
    VireoLogger::setSecretsProvider(&secretsInUse);
    VireoLogger::setFeedbackPresenter([&window] {
        // While the feedback screen is up, a picture would show only that screen.
        if (window.feedbackHost()->screen() == nullptr) {
            window.feedbackHost()->present(grabCovered(window));
        }
    });
    // As far as the last run found: a device that cannot be shaken has a button in the console list instead.
    VireoLogger::settings().offersEntry = !KeptState::shared().boolForKey(shakenKey);
    QObject::connect(
        &window, &QQuickWindow::frameSwapped, &m_untilGone, [this, &window] { startAfterFirstFrame(window); },
        static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
}

FeedbackSupport::~FeedbackSupport()
{
    VireoLogger::setFeedbackPresenter({});
    VireoLogger::setSecretsProvider({});
}

void FeedbackSupport::startAfterFirstFrame(FeedbackWindow& window)
{
    DispatchQueue::globalBackground().async([] { CrashCapture::recordModules(); });
    window.feedbackHost()->offerCrashes();
    bool isShaken = false;
    if (VireoLogger::settings().reportOnShake) {
        m_sensor = std::make_unique<ShakeSensor>([&window] {
            window.motionBegan(FeedbackWindow::EventType::Motion, FeedbackWindow::EventSubtype::MotionShake);
        });
        isShaken = m_sensor->isThere();
    }
    KeptState::shared().setBool(isShaken, shakenKey);
    VireoLogger::settings().offersEntry = !isShaken;
    NotificationCenter::defaultCenter().postNotification("FeedbackEntryDidChange");
}

} // namespace lodestar
