// SPDX-License-Identifier: Apache-2.0
// kit-gallery FOLDER: draws the kit's widgets and screens in every appearance into pictures, for people to look at.
#include "Gallery.h"
#include "Kit/Core/Appearance.h"
#include "Kit/Core/Kit.h"
#include "Kit/Core/MainLoop.h"
#include "Kit/Core/NavigationController.h"
#include "Kit/Core/TabBarController.h"
#include "Kit/Core/UIColor+Tessel.h"

#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QImage>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>

namespace lodestar
{

namespace
{

struct Look {
    const char* name;
    bool dark = false;
    double textScale = 1;
    bool mirrored = false;
};

void settle(int milliseconds)
{
    const QDeadlineTimer limit(milliseconds);
    while (!limit.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    }
}

class Studio
{
public:
    explicit Studio(QString folder) : m_folder(std::move(folder)) {}

    /// Draws a fresh window with a fresh controller in the look, after `pose` has changed it.
    template <typename Pose>
    void picture(const QString& name, QSize size, Look look, const char* scene, Pose pose)
    {
        Appearance::shared().overrideDark(look.dark);
        Appearance::shared().overrideTextScale(look.textScale);
        Appearance::shared().overrideMirrored(look.mirrored);
        auto gallery = makeController<GalleryController>();
        gallery->setScene(QUrl(QStringLiteral("qrc:/kit/%1.qml").arg(QLatin1String(scene))));
        gallery->setBackTitle(QStringLiteral(""));
        auto navigation = makeController<NavigationController>(gallery);
        auto second = makeController<GalleryController>();
        second->setScene(QUrl(QStringLiteral("qrc:/kit/GalleryDetail.qml")));
        const bool board = qstrcmp(scene, "Gallery") == 0;
        std::shared_ptr<ViewController> root = gallery;
        if (!board) {
            root = makeController<TabBarController>(
                std::vector<TabBarItem>{{QStringLiteral("Corvels"), QStringLiteral("tab_consoles"), navigation},
                                        {QStringLiteral("Dashboard"), QStringLiteral("tab_dashboard"), second}});
        }
        QQuickView window;
        installKit(*window.engine());
        window.setInitialProperties({{QStringLiteral("controller"), QVariant::fromValue<QObject*>(root.get())}});
        window.setResizeMode(QQuickView::SizeRootObjectToView);
        window.setSource(QUrl(QStringLiteral("qrc:/kit/RootView.qml")));
        window.resize(size);
        window.show();
        window.requestActivate();
        settle(100);
        pose(*gallery);
        settle(900);
        const QString file = QStringLiteral("%1/%2-%3.png").arg(m_folder, name, QLatin1String(look.name));
        if (!window.grabWindow().save(file)) {
            qFatal("cannot write %s", qPrintable(file));
        }
    }

private:
    QString m_folder;
};

void run(const QString& folder)
{
    Studio studio(folder);
    const Look light{"light"};
    const Look dark{"dark", true};
    const Look rtl{"rtl", false, 1, true};
    const Look large{"text200", false, 2};
    const auto nothing = [](GalleryController&) {};
    const auto sheet = [](GalleryController& gallery) {
        auto editor = makeController<GalleryController>();
        editor->setScene(QUrl(QStringLiteral("qrc:/kit/GallerySheet.qml")));
        gallery.presentSemiViewController(editor, {false, 266});
    };
    const auto alert = [](GalleryController& gallery) {
        gallery.alert()->present(QStringLiteral("Reset Application?"),
                                 QStringLiteral("Resetting your password will clear all application data"),
                                 {{QStringLiteral("OK"), true}, {QStringLiteral("Cancel")}}, 1, {});
    };
    const auto actions = [](GalleryController& gallery) {
        gallery.actions()->present(QStringLiteral("Managed System"), {},
                                   {{QStringLiteral("System Information"), false, QStringLiteral("info")},
                                    {QStringLiteral("Performance Monitoring"), false, QStringLiteral("performance")},
                                    {QStringLiteral("Cancel")}},
                                   2, {});
    };
    const auto grid = [](GalleryController& gallery) {
        gallery.grid()->present(
            QStringLiteral("Northfield Recovery Site"), {},
            {{QStringLiteral("Connection"), false, QStringLiteral("connection"), QStringLiteral("Offline")},
             {QStringLiteral("Attention"), false, QStringLiteral("tab_attention"), QStringLiteral("1")},
             {QStringLiteral("Copy Address"), false, QStringLiteral("copy")},
             {QStringLiteral("Cancel")}},
            3, {});
    };
    const auto push = [](GalleryController& gallery) {
        auto detail = makeController<GalleryController>();
        detail->setScene(QUrl(QStringLiteral("qrc:/kit/GalleryDetail.qml")));
        gallery.navigationController()->pushViewController(detail, Animated::Yes);
    };
    for (const Look& look : {light, dark, rtl, large}) {
        studio.picture(QStringLiteral("board"), look.textScale > 1 ? QSize(2000, 2300) : QSize(1200, 1400), look,
                       "Gallery", nothing);
        studio.picture(QStringLiteral("list"), {390, 844}, look, "GalleryScene", nothing);
        studio.picture(QStringLiteral("sheet"), {390, 844}, look, "GalleryScene", sheet);
        studio.picture(QStringLiteral("detail"), {390, 844}, look, "GalleryScene", push);
        studio.picture(QStringLiteral("alert"), {390, 844}, look, "GalleryScene", alert);
        studio.picture(QStringLiteral("actions"), {390, 844}, look, "GalleryScene", actions);
        studio.picture(QStringLiteral("grid"), {390, 844}, look, "GalleryScene", grid);
    }
    studio.picture(QStringLiteral("wide"), {1280, 800}, light, "GalleryScene", nothing);
    studio.picture(QStringLiteral("wide"), {1280, 800}, rtl, "GalleryScene", sheet);
    studio.picture(QStringLiteral("tablet"), {768, 1024}, light, "GalleryScene", nothing);
}

} // namespace

} // namespace lodestar

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    qputenv("QT_SCALE_FACTOR", "2");
    const QGuiApplication application(argc, argv);
    if (argc != 2) {
        qFatal("usage: kit-gallery FOLDER");
    }
    const lodestar::MainLoop mainLoop;
    lodestar::run(QString::fromLocal8Bit(argv[1]));
    return 0;
}
