// SPDX-License-Identifier: Apache-2.0
#include "Application/Adapters/DesktopSettings.h"
#include "Application/Adapters/LocaleNameOrder.h"
#include "Application/Adapters/PackageResources.h"
#include "Application/Adapters/SessionBus.h"
#include "Application/Adapters/SystemKeychain.h"
#include "Application/AppDelegate.h"
#include "Application/FeedbackSupport.h"
#include "Application/FeedbackWindow.h"
#include "Application/KeptState.h"
#include "Application/MainStoryboard.h"
#include "Application/Model/DataFolder.h"
#include "Application/Model/FileUserDefaults.h"
#include "Application/Model/StoreStack.h"
#include "Application/OneInstance.h"
#include "Application/PrivacyCover.h"
#include "Application/TerminationSignals.h"
#include "Application/WatchSupport.h"
#include "Application/WindowPlace.h"
#include "Feedback/ReportSender.h"
#include "Feedback/VireoLogger.h"
#include "Kit/Core/Appearance.h"
#include "Kit/Core/Languages.h"
#include "Kit/Core/MainLoop.h"
#include "Platform/MemoryReserve.h"

#include <QCommandLineParser>
#include <QDir>
#include <QGuiApplication>
#include <QLocale>
#include <QScreen>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string_view>

using namespace lodestar;

namespace
{

struct Options {
    QString dataFolder;
    QString reportsTo;
    QString language;
    bool fullScreen = false;
    bool quitAfterFirstFrame = false;
};

Options parseOptions(const QCoreApplication& application)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QCoreApplication::translate("main", "Watches Corvel consoles and changes nothing."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption data(QStringLiteral("data"),
                                  QCoreApplication::translate("main", "Keep everything in this folder."),
                                  QStringLiteral("folder"));
    const QCommandLineOption reportsTo(
        QStringLiteral("reports-to"),
        QCoreApplication::translate("main", "Offer to send feedback and crash reports to this https address."),
        QStringLiteral("address"));
    const QCommandLineOption language(
        QStringLiteral("language"),
        //: In brackets codes, which stay as they are
        QCoreApplication::translate("main", "Speak this language instead of the system's (en, de, fr, es, ja, ar)."),
        QStringLiteral("code"));
    const QCommandLineOption fullScreen(QStringLiteral("full-screen"),
                                        QCoreApplication::translate("main", "Fill the screen."));
    const QCommandLineOption firstFrame(
        QStringLiteral("quit-after-first-frame"),
        QCoreApplication::translate("main", "Leave once the first screen is drawn, for measuring."));
    parser.addOptions({data, reportsTo, language, fullScreen, firstFrame});
    parser.process(application);
    return {parser.value(data), parser.value(reportsTo), parser.value(language), parser.isSet(fullScreen),
            parser.isSet(firstFrame)};
}

/// Whether the answer is only words, for which no display is needed.
bool isQuestion(int argc, char** argv)
{
    return std::any_of(argv + 1, argv + argc, [](std::string_view each) {
        return each == "--version" || each == "-v" || each == "--help" || each == "-h" || each == "--help-all";
    });
}

/// The folder below which everything is kept.
QString dataFolderOf(const QString& asked)
{
    return asked.isEmpty() ? QString::fromStdString(DataFolder::standard()) : QDir(asked).absolutePath();
}

SystemKeychain& installPlatform(const QString& folder)
{
    VireoLogger::openLogFolder(DataFolder::logs(folder.toStdString()));
    FeedbackSupport::captureCrashes(folder, QStringLiteral(LODESTAR_VERSION));
    UserDefaults::install(std::make_unique<FileUserDefaults>(DataFolder::defaults(folder.toStdString())));
    KeptState::openFolder(folder.toStdString());
    auto keychain = std::make_unique<SystemKeychain>();
    SystemKeychain& installed = *keychain;
    Keychain::install(std::move(keychain));
    Resources::install(std::make_unique<PackageResources>());
    NameOrder::install(std::make_unique<LocaleNameOrder>());
    StoreStack::shared().setApplicationDocumentsDirectory(DataFolder::documents(folder.toStdString()));
    return installed;
}

} // namespace

int main(int argc, char** argv)
{
    MemoryReserve::install();
    leaveAbsentSessionBus();
    QCoreApplication::setApplicationName(QStringLiteral("Lodestar"));
    QCoreApplication::setApplicationVersion(QStringLiteral(LODESTAR_VERSION));
    if (isQuestion(argc, argv)) {
        const QCoreApplication answering(argc, argv);
        Languages::use(QLocale::system().uiLanguages());
        parseOptions(answering); // writes the answer and ends the program
    }
    QGuiApplication application(argc, argv);
    QGuiApplication::setDesktopFileName(QStringLiteral("org.ornis.Lodestar"));
    Languages::use(QLocale::system().uiLanguages()); // for what parsing may object to
    const Options options = parseOptions(application);
    if (!options.language.isEmpty()) {
        Languages::use({options.language});
    }

    if (!options.reportsTo.isEmpty()) {
        setFeedbackAddress(options.reportsTo.toStdString());
    }

    const MainLoop mainLoop;
    const TerminationSignals terminationSignals([] { QGuiApplication::quit(); });
    const QString dataFolder = dataFolderOf(options.dataFolder);
    if (!claimDataFolder(dataFolder)) {
        return 1;
    }
    FeedbackWindow::beginCompilation();
    SystemKeychain& keychain = installPlatform(dataFolder);

    AppDelegate delegate;
    registerMainStoryboard([&delegate](std::shared_ptr<ViewController> root) {
        delegate.window()->setRootViewController(std::move(root));
    });
    delegate.didFinishLaunchingWithOptions();

    FeedbackWindow* window = delegate.window();
    const OneInstance oneInstance(*window, dataFolder);
    auto feedback = std::make_unique<FeedbackSupport>(*window, dataFolder, QStringLiteral(LODESTAR_VERSION));
    auto watch = std::make_unique<WatchSupport>(*window);
    if (options.quitAfterFirstFrame) {
        QObject::connect(
            window, &QQuickWindow::frameSwapped, &application,
            [] {
                std::puts("first frame");
                std::fflush(stdout);
                QGuiApplication::quit();
            },
            Qt::DirectConnection);
    }
    // The first frame must not wait for the keychain's service or the bus.
    QObject::connect(
        window, &QQuickWindow::frameSwapped, window, [&keychain] { keychain.begin(); },
        static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
    delegate.showInitialViewController();
    window->loadInterface();
    std::unique_ptr<WindowPlace> place;
    if (options.fullScreen) {
        // A bare X server has no window manager that would make the window fill the screen or give it the keyboard
        // focus.
        window->setFlag(Qt::FramelessWindowHint);
        window->setGeometry(window->screen()->geometry());
        window->show();
        window->requestActivate();
    } else {
        window->resize(390, 844);
        place = std::make_unique<WindowPlace>(*window);
        window->show();
    }
    DesktopSettings desktop({[](bool reduced) { Appearance::shared().setSystemReducedMotion(reduced); },
                             [](bool high) { Appearance::shared().setSystemHighContrast(high); },
                             [](double scale) { Appearance::shared().setSystemTextScale(scale); }});
    // Asks the desktop only after the first frame, which must wait for nobody.
    QObject::connect(
        window, &QQuickWindow::frameSwapped, &desktop, [&desktop] { desktop.follow(); }, Qt::SingleShotConnection);
    PrivacyCover cover(*window, PrivacyCover::deviceOf(*window->screen()),
                       [&delegate] { delegate.applicationDidBecomeActive(); });
    QObject::connect(&application, &QGuiApplication::applicationStateChanged, &cover,
                     &PrivacyCover::applicationStateDidChange);

    const int status = QGuiApplication::exec();
    watch.reset();
    delegate.applicationWillTerminate();
    feedback.reset();
    place.reset();
    FeedbackWindow::tearDown();
    UserDefaults::standard().synchronize();
    KeptState::shared().synchronize();
    VireoLogger::flush();
    if (keychain.owesAnswer()) {
        std::_Exit(status);
    }
    return status;
}
