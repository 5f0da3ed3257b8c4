// SPDX-License-Identifier: Apache-2.0
// The passcode in a real secret service. The program starts itself anew in a session bus with a service of its own.
#include "Application/Adapters/SystemKeychain.h"
#include "Application/Passcode.h"
#include "Application/PasswordCreationViewController.h"
#include "Application/SettingsViewController.h"
#include "Kit/Core/MainLoop.h"
#include "Kit/Core/NavigationController.h"
#include "Kit/Core/TabBarController.h"
#include "Tests/Application/LockFixture.h"
#include "Tests/Support/StoredPassword.h"

#include <QDBusConnection>
#include <QDBusVirtualObject>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <string_view>

namespace lodestar::lock
{
namespace
{

constexpr auto prompterOption = "--prompter";
constexpr auto keyringProcess = "LODESTAR_TEST_KEYRING";
constexpr std::chrono::milliseconds deadline{1500};
constexpr auto busConfiguration = R"(<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:tmpdir=/tmp</listen>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
)";

/// The keychain's library knows one thread a process.
class SharedSystemKeychain final : public Keychain
{
public:
    void readPassword(const std::string& service, const std::string& account, Prompt prompt, Read answer) override
    {
        system().readPassword(service, account, prompt, std::move(answer));
    }
    void writePassword(const std::string& password, const std::string& service, const std::string& account,
                       Prompt prompt, Written answer) override
    {
        system().writePassword(password, service, account, prompt, std::move(answer));
    }

private:
    static SystemKeychain& system()
    {
        static SystemKeychain keychain(deadline);
        return keychain;
    }
};

class PasscodeServiceTest : public LockTest
{
protected:
    PasscodeServiceTest()
    {
        Keychain::install(std::make_unique<SharedSystemKeychain>());
        EXPECT_TRUE(test::writePassword({}));
        require(false);
    }

    /// What another program finds.
    static QString seenFromOutside()
    {
        QProcess tool;
        tool.start(QStringLiteral("secret-tool"),
                   {QStringLiteral("lookup"), QStringLiteral("user"), QStringLiteral("Admin"), QStringLiteral("server"),
                    QStringLiteral("Login")});
        EXPECT_TRUE(tool.waitForFinished(20'000));
        return QString::fromUtf8(tool.readAllStandardOutput());
    }
    static void lockKeyring()
    {
        // It may crash once that is done.
        QProcess::execute(QStringLiteral("secret-tool"),
                          {QStringLiteral("lock"), QStringLiteral("--collection=login")});
        ASSERT_EQ(test::readPassword("Login", "Admin", Keychain::Prompt::No).error().code, Keychain::locked);
    }
    static bool waitFor(const std::function<bool()>& predicate,
                        std::chrono::milliseconds limit = std::chrono::seconds(20))
    {
        const QDeadlineTimer end(limit);
        while (!predicate() && !end.hasExpired()) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        }
        return predicate();
    }
    /// Until the service has answered what it was asked so far.
    static void settle() { std::ignore = test::readPassword("Login", "Nobody", Keychain::Prompt::No); }

    std::shared_ptr<PasswordCreationViewController> openSheet()
    {
        settings = Storyboard::main().instantiate<SettingsViewController>(Scenes::settingsViewController);
        settings->beginAppearance();
        settings->passwordSwitch()->setOn(true);
        settings->togglePassword();
        settle();
        if (settings->semiModal() == nullptr) {
            settings->didSelectRowAtIndexPath({0, 1});
        }
        EXPECT_TRUE(waitFor([this] { return settings->semiModal() != nullptr; }));
        return std::dynamic_pointer_cast<PasswordCreationViewController>(settings->semiModal()->sharedController());
    }
    /// Whether it was told as saved.
    bool save(const QString& oldText, const QString& newText)
    {
        const auto sheet = openSheet();
        sheet->oldPassword()->setText(oldText);
        sheet->updatePassword()->setText(newText);
        sheet->verifyPassword()->setText(newText);
        sheet->savePW();
        EXPECT_TRUE(waitFor([&] { return settings->alert()->isPresented() || sheet->alert()->isPresented(); }));
        said = sheet->alert()->message();
        const bool saved = settings->alert()->isPresented();
        EXPECT_NE(saved, sheet->alert()->isPresented());
        sheet->cancel();
        return saved;
    }
    bool opens(const QString& text)
    {
        const auto login = Storyboard::main().instantiate<LoginViewController>(Scenes::loginViewController);
        root = login;
        login->beginAppearance();
        login->passwordTextField()->setText(text);
        settle();
        if (root == login) {
            login->performLogin();
            settle();
        }
        return std::dynamic_pointer_cast<TabBarController>(root) != nullptr;
    }

    std::shared_ptr<SettingsViewController> settings;
    QString said; ///< by the sheet, last
};

TEST_F(PasscodeServiceTest, IsSetChangedAndResetInTheSightOfOthers)
{
    const QString first = QString::fromUtf8("p\u00E4ss 'w\u014Drd' \U0001F511 ");
    const QString second(10'000, u'\u00FC');
    ASSERT_TRUE(save({}, first));
    EXPECT_EQ(seenFromOutside(), first);
    EXPECT_FALSE(opens(first.trimmed()));
    EXPECT_TRUE(opens(first));

    EXPECT_FALSE(save(first.trimmed(), second));
    EXPECT_EQ(seenFromOutside(), first);
    EXPECT_TRUE(save(first, second));
    EXPECT_EQ(seenFromOutside(), second);
    EXPECT_FALSE(save(second, QString::fromLatin1("a\0b", 3))) << "the service would keep its first letter only";
    EXPECT_EQ(seenFromOutside(), second);
    EXPECT_TRUE(opens(second));

    EXPECT_FALSE(opens(QStringLiteral("forgotten")));
    std::dynamic_pointer_cast<LoginViewController>(root)->resetApplicationData();
    settle();
    EXPECT_EQ(seenFromOutside(), QString());
    EXPECT_FALSE(isRequired());
}

/// One test, since nothing here can unlock a keyring again, or start another service.
TEST_F(PasscodeServiceTest, AKeyringThatAsksIsWaitedForAndALockedOneIsToldFromAnEmptyOneAndFromNone)
{
    EXPECT_TRUE(opens({}));
    EXPECT_EQ(Passcode::lockOffWords(), QString());
    ASSERT_TRUE(save({}, QStringLiteral("kept")));
    lockKeyring();
    require();
    QProcess prompter;
    prompter.start(QCoreApplication::applicationFilePath(), {QLatin1String(prompterOption)});
    ASSERT_TRUE(prompter.waitForReadyRead(20'000));
    const auto login = Storyboard::main().instantiate<LoginViewController>(Scenes::loginViewController);
    root = login;
    login->beginAppearance();
    EXPECT_FALSE(waitFor([&] { return root != login; }, 2 * deadline));
    EXPECT_TRUE(isRequired());
    EXPECT_FALSE(login->keychainNote()->isHidden());
    EXPECT_FALSE(login->resetPasswordButton()->isHidden()) << "the way out";
    prompter.kill(); // as if the person had sent it away
    prompter.waitForFinished();
    EXPECT_TRUE(waitFor([&] { return root != login; }));
    EXPECT_FALSE(isRequired());
    EXPECT_THAT(Passcode::lockOffWords().toStdString(), ::testing::HasSubstr("keychain was locked"));
    EXPECT_THAT(logged(), ::testing::HasSubstr("The passcode cannot be read: Keychain -3: The keychain is locked."));

    // Now nobody is there who could be asked.
    EXPECT_EQ(test::readPassword("Login", "Nobody", Keychain::Prompt::No).value(), "");
    EXPECT_TRUE(test::writePassword("", "Login", "Nobody", Keychain::Prompt::No)) << "nothing has to be written";
    EXPECT_EQ(test::writePassword("x", "Login", "Nobody", Keychain::Prompt::No).error().code, Keychain::locked);
    EXPECT_FALSE(save(QStringLiteral("kept"), QStringLiteral("lost")));
    EXPECT_EQ(said, "The system's keychain is locked. The passcode was not saved.");

    const int service = qEnvironmentVariableIntValue(keyringProcess);
    ASSERT_GT(service, 0);
    ASSERT_EQ(::kill(service, SIGKILL), 0);
    QElapsedTimer timer;
    timer.start();
    EXPECT_FALSE(save(QStringLiteral("kept"), QStringLiteral("lost")));
    EXPECT_EQ(said, "No keychain is running on this system. The passcode was not saved.");
    require();
    EXPECT_TRUE(opens(QStringLiteral("anything"))) << "what cannot be read is no passcode";
    EXPECT_FALSE(isRequired());
    EXPECT_LT(timer.elapsed(), 6 * deadline.count());
    EXPECT_THAT(Passcode::lockOffWords().toStdString(), ::testing::HasSubstr("no keychain was running"));
    EXPECT_THAT(logged(), ::testing::Not(::testing::AnyOf(::testing::HasSubstr("kept"), ::testing::HasSubstr("lost"))));
}

/// Stands in for the desktop's prompt: takes every question and never answers.
class SilentPrompter final : public QDBusVirtualObject
{
public:
    QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& /*message*/, const QDBusConnection& /*connection*/) override { return true; }
};

int runPrompter(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    SilentPrompter prompter;
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.registerVirtualObject(QStringLiteral("/org/gnome/keyring/Prompter"), &prompter);
    bus.registerService(QStringLiteral("org.gnome.keyring.SystemPrompter"));
    std::puts("there");
    std::fflush(stdout);
    return QCoreApplication::exec();
}

int runInSession(int argc, char** argv)
{
    const QTemporaryDir home;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), home.path());
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), home.path());
    environment.remove(QStringLiteral("XDG_DATA_HOME"));
    // A bus that starts nothing by itself: another service would come for a question before ours is there, and in the
    // place of ours when that is gone, locked and with nobody to unlock it.
    QFile bus(home.filePath(QStringLiteral("bus.conf")));
    if (!bus.open(QIODevice::WriteOnly) || bus.write(busConfiguration) < 0) {
        return 1;
    }
    bus.close();
    const QString script =
        QStringLiteral(
            "gnome-keyring-daemon --foreground --unlock --components=secrets < <(printf '\\n') >/dev/null 2>&1 & "
            "export %1=$!; for i in $(seq 200); do dbus-send --session --print-reply "
            "--dest=org.freedesktop.DBus / org.freedesktop.DBus.NameHasOwner "
            "string:org.freedesktop.secrets | grep -q true && break; sleep 0.1; done; exec \"$0\" \"$@\"")
            .arg(QLatin1String(keyringProcess));
    QStringList arguments{QStringLiteral("--config-file"), bus.fileName(),       QStringLiteral("--"),
                          QStringLiteral("bash"),          QStringLiteral("-c"), script};
    for (int index = 0; index < argc; ++index) {
        arguments << QString::fromLocal8Bit(argv[index]);
    }
    QProcess session;
    session.setProcessEnvironment(environment);
    session.setProcessChannelMode(QProcess::ForwardedChannels);
    session.start(QStringLiteral("dbus-run-session"), arguments);
    const bool finished = session.waitForFinished(90'000);
    return finished && session.exitStatus() == QProcess::NormalExit ? session.exitCode() : 1;
}

} // namespace
} // namespace lodestar::lock

int main(int argc, char** argv)
{
    const bool lists = std::any_of(
        argv, argv + argc, [](std::string_view argument) { return argument.substr(0, 18) == "--gtest_list_tests"; });
    if (!lists && !qEnvironmentVariableIsSet(lodestar::lock::keyringProcess)) {
        return lodestar::lock::runInSession(argc, argv);
    }
    if (argc == 2 && std::string_view(argv[1]) == lodestar::lock::prompterOption) {
        return lodestar::lock::runPrompter(argc, argv);
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleMock(&argc, argv);
    const QGuiApplication application(argc, argv);
    const lodestar::MainLoop mainLoop;
    return RUN_ALL_TESTS();
}
