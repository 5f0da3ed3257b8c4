// SPDX-License-Identifier: Apache-2.0
#include "Application/Adapters/DesktopSettings.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

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
        return connection.send(message.createReply(QVariant::fromValue(groups)));
    }
    Groups groups;
};

TEST(DesktopSettingsTests, MotionFollowsWhatTheDesktopSays)
{
    qDBusRegisterMetaType<Groups>();
    QProcess daemon;
    daemon.start(QStringLiteral("dbus-daemon"),
                 {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address")});
    ASSERT_TRUE(daemon.waitForReadyRead());
    const QString address = QString::fromUtf8(daemon.readLine()).trimmed();

    QDBusConnection desktop = QDBusConnection::connectToBus(address, QStringLiteral("desktop"));
    Portal portal;
    portal.groups[QStringLiteral("org.gnome.desktop.interface")][QStringLiteral("enable-animations")] = false;
    const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
    ASSERT_TRUE(desktop.registerVirtualObject(path, &portal));
    ASSERT_TRUE(desktop.registerService(QStringLiteral("org.freedesktop.portal.Desktop")));

    std::vector<bool> told;
    DesktopSettings settings([&](bool reduced) { told.push_back(reduced); });
    settings.follow(QDBusConnection::connectToBus(address, QStringLiteral("program")));
    ASSERT_TRUE(QTest::qWaitFor([&] { return told.size() == 1; }));

    const auto change = [&](const char* group, const char* key, const QVariant& value) {
        QDBusMessage changed = QDBusMessage::createSignal(path, QStringLiteral("org.freedesktop.portal.Settings"),
                                                          QStringLiteral("SettingChanged"));
        changed << QString::fromLatin1(group) << QString::fromLatin1(key) << QVariant::fromValue(QDBusVariant(value));
        ASSERT_TRUE(desktop.send(changed));
    };
    change("org.gnome.desktop.interface", "enable-animations", true);
    change("org.gnome.desktop.interface", "cursor-size", 24);
    change("org.kde.kdeglobals.KDE", "AnimationDurationFactor", QStringLiteral("0"));
    change("org.freedesktop.appearance", "reduced-motion", 0U);
    ASSERT_TRUE(QTest::qWaitFor([&] { return told.size() == 4; }));
    EXPECT_THAT(told, testing::ElementsAre(true, false, true, false));
    daemon.terminate();
    daemon.waitForFinished();
}

} // namespace
} // namespace lodestar
