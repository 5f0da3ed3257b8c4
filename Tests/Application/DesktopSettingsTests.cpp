// SPDX-License-Identifier: Apache-2.0
#include "Application/Adapters/DesktopSettings.h"
#include "Application/Adapters/SessionBus.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <gmock/gmock.h>

namespace lodestar
{
namespace
{

using Groups = QMap<QString, QVariantMap>;

/// A desktop that answers for its settings as a portal does.
class Portal : public QDBusVirtualObject
{
public:
    QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        return !answers || connection.send(message.createReply(QVariant::fromValue(groups)));
    }
    Groups groups;
    bool answers = true;
};

TEST(DesktopSettingsTests, MotionContrastAndTextSizeFollowWhatTheDesktopSays)
{
    qDBusRegisterMetaType<Groups>();
    QProcess daemon;
    daemon.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
    ASSERT_TRUE(daemon.waitForReadyRead());
    const QString address = QString::fromUtf8(daemon.readLine()).trimmed();

    QDBusConnection desktop = QDBusConnection::connectToBus(address, "desktop");
    Portal portal;
    portal.groups["org.gnome.desktop.interface"]["enable-animations"] = false;
    portal.groups["org.gnome.desktop.interface"]["text-scaling-factor"] = 1.5;
    portal.groups["org.gnome.desktop.interface"]["gtk-theme"] = "Adwaita";
    portal.groups["org.gnome.desktop.a11y.interface"]["high-contrast"] = true;
    portal.groups["org.freedesktop.appearance"]["contrast"] = 0U;
    const QString path = "/org/freedesktop/portal/desktop";
    ASSERT_TRUE(desktop.registerVirtualObject(path, &portal));
    ASSERT_TRUE(desktop.registerService("org.freedesktop.portal.Desktop"));

    std::vector<bool> told;
    std::vector<bool> contrasts;
    std::vector<double> scales;
    DesktopSettings settings({[&](bool reduced) { told.push_back(reduced); },
                              [&](bool high) { contrasts.push_back(high); },
                              [&](double scale) { scales.push_back(scale); }});
    settings.follow(QDBusConnection::connectToBus(address, "program"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return contrasts.size() == 3; }));
    EXPECT_TRUE(contrasts.back()); // although the settings told before and after are off

    const auto change = [&](const char* group, const char* key, const QVariant& value) {
        QDBusMessage changed = QDBusMessage::createSignal(path, "org.freedesktop.portal.Settings", "SettingChanged");
        changed << QString::fromLatin1(group) << QString::fromLatin1(key) << QVariant::fromValue(QDBusVariant(value));
        ASSERT_TRUE(desktop.send(changed));
    };
    change("org.gnome.desktop.interface", "enable-animations", true);
    change("org.gnome.desktop.interface", "cursor-size", 24);
    change("org.gnome.desktop.interface", "text-scaling-factor", 2.0);
    change("org.kde.kdeglobals.KDE", "AnimationDurationFactor", "0");
    change("org.kde.kdeglobals.KDE", "AnimationDurationFactor", "1");
    change("org.gnome.desktop.a11y.interface", "high-contrast", false);
    change("org.gnome.desktop.interface", "gtk-theme", "HighContrastInverse");
    change("org.freedesktop.appearance", "reduced-motion", 1U);
    ASSERT_TRUE(QTest::qWaitFor([&] { return told.size() == 5; }));
    EXPECT_THAT(told, testing::ElementsAre(true, false, true, false, true));
    contrasts.erase(contrasts.begin(), contrasts.begin() + 3);
    EXPECT_THAT(contrasts, testing::ElementsAre(false, true));
    EXPECT_THAT(scales, testing::ElementsAre(1.5, 2.0));

    // A portal that never answers holds nobody up, and what it says of itself is heard.
    portal.answers = false;
    bool isHigh = false;
    DesktopSettings patient({[](bool) {}, [&](bool high) { isHigh = high; }, [](double) {}});
    QElapsedTimer time;
    time.start();
    patient.follow(QDBusConnection::connectToBus(address, "patient"));
    EXPECT_LT(time.elapsed(), 1000);
    QTest::qWait(100);
    change("org.gnome.desktop.a11y.interface", "high-contrast", true);
    EXPECT_TRUE(QTest::qWaitFor([&] { return isHigh; }));
    daemon.terminate();
    daemon.waitForFinished();
}

TEST(SessionBusTests, NobodyStartsABusWhereThereIsNone)
{
    const QTemporaryDir folder;
    const QString launched = folder.filePath("launched");
    QFile launcher(folder.filePath("dbus-launch"));
    ASSERT_TRUE(launcher.open(QIODevice::WriteOnly));
    launcher.write(("#!/bin/sh\ntouch " + launched + "\nexit 1\n").toUtf8());
    launcher.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    launcher.close();
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            qunsetenv("DBUS_SESSION_BUS_ADDRESS");
            qputenv("XDG_RUNTIME_DIR", folder.path().toUtf8());
            qputenv("DISPLAY", ":0");
            qputenv("PATH", folder.path().toUtf8() + ":" + qgetenv("PATH"));
            leaveAbsentSessionBus();
            const auto bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "absent");
            std::exit(hasSessionBus() || bus.isConnected() || QFile::exists(launched) ? 1 : 0);
        },
        testing::ExitedWithCode(0), "");
}

} // namespace
} // namespace lodestar
