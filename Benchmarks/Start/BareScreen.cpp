// SPDX-License-Identifier: Apache-2.0
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>

#include <cstdio>

/// Shows one screen, prints "first frame" when that screen is drawn, and ends.
int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    QQmlApplicationEngine engine;
    engine.load(QUrl(QStringLiteral("qrc:/Lodestar/BareScreen/BareScreen.qml")));
    auto* window = engine.rootObjects().isEmpty() ? nullptr : qobject_cast<QQuickWindow*>(engine.rootObjects().first());
    if (window == nullptr) {
        return 1;
    }
    QObject::connect(
        window, &QQuickWindow::frameSwapped, window,
        [] {
            std::puts("first frame");
            std::fflush(stdout);
            QCoreApplication::quit();
        },
        Qt::SingleShotConnection);
    return QCoreApplication::exec();
}
