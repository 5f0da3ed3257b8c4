// SPDX-License-Identifier: Apache-2.0
// The passcode in a real secret service. The program starts itself anew in a session bus with a service of its own.
#include "Application/Adapters/SystemKeychain.h"
#include "Tests/Support/OwnSession.h"
#include "Tests/Support/StoredPassword.h"

#include <QDBusConnection>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QTest>

#include <csignal>
#include <sys/wait.h>

namespace lodestar
{
namespace
{

using Prompt = Keychain::Prompt;

constexpr auto keyringProcess = "LODESTAR_TEST_KEYRING";
constexpr std::chrono::milliseconds deadline{1500};

/// Stands in for the desktop's prompt: takes every question and never answers. Goes as if the person had sent it away.
class SilentPrompter final : public QDBusVirtualObject
{
public:
    SilentPrompter()
    {
        QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "prompter");
        bus.registerVirtualObject("/org/gnome/keyring/Prompter", this);
        EXPECT_TRUE(bus.registerService("org.gnome.keyring.SystemPrompter"));
    }
    ~SilentPrompter() override { QDBusConnection::disconnectFromBus("prompter"); }
    QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& /*message*/, const QDBusConnection& /*connection*/) override { return true; }
};

/// What another program finds.
QString seenFromOutside()
{
    QProcess tool;
    tool.start("secret-tool", {"lookup", "user", "Admin", "server", "Login"});
    EXPECT_TRUE(tool.waitForFinished(20'000));
    return QString::fromUtf8(tool.readAllStandardOutput());
}

/// One test, since nothing here can unlock a keyring again, or start another service.
TEST(PasscodeServiceTest, APasscodeIsKeptWholeAndALockedKeyringIsToldFromAnEmptyOneAndFromNone)
{
    auto made = std::make_unique<SystemKeychain>(deadline);
    made->begin();
    Keychain::install(std::move(made));
    EXPECT_EQ(test::readPassword().value(), "");
    const QString passcodes[] = {QString::fromUtf8("p\u00E4ss 'w\u014Drd' \U0001F511 "), QString(10'000, u'\u00FC'),
                                 QString(), "kept"};
    for (const QString& passcode : passcodes) {
        EXPECT_TRUE(test::writePassword(passcode.toStdString()));
        EXPECT_EQ(test::readPassword().value(), passcode.toStdString());
        EXPECT_EQ(seenFromOutside(), passcode);
    }
    EXPECT_EQ(test::writePassword(std::string("a\0b", 3)).error().code, Keychain::notAText)
        << "the service would keep its first letter only";
    EXPECT_EQ(seenFromOutside(), "kept");

    // It may crash once that is done.
    QProcess::execute("secret-tool", {"lock", "--collection=login"});
    ASSERT_EQ(test::readPassword("Login", "Admin", Prompt::No).error().code, Keychain::locked);
    auto prompter = std::make_unique<SilentPrompter>();
    std::optional<Result<std::string>> answer;
    Keychain::standard().readPassword("Login", "Admin", Prompt::Allowed,
                                      [&](Result<std::string> result) { answer = std::move(result); });
    EXPECT_FALSE(QTest::qWaitFor([&] { return answer.has_value(); }, static_cast<int>(2 * deadline.count())))
        << "the person is waited for";
    prompter.reset();
    ASSERT_TRUE(QTest::qWaitFor([&] { return answer.has_value(); }, 20'000));
    EXPECT_EQ(answer->error().code, Keychain::locked);

    // Now nobody is there who could be asked.
    EXPECT_EQ(test::readPassword("Login", "Nobody", Prompt::No).value(), "");
    EXPECT_TRUE(test::writePassword("", "Login", "Nobody", Prompt::No)) << "nothing has to be written";
    EXPECT_EQ(test::writePassword("x", "Login", "Nobody", Prompt::No).error().code, Keychain::locked);
    EXPECT_EQ(test::writePassword("lost").error().code, Keychain::locked);

    const int service = qEnvironmentVariableIntValue(keyringProcess);
    ASSERT_GT(service, 0);
    ASSERT_EQ(::kill(service, SIGKILL), 0);
    ASSERT_EQ(::waitpid(service, nullptr, 0), service); // the shell that started it became this program
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(test::readPassword().error().code, Keychain::absent);
    EXPECT_EQ(test::writePassword("lost").error().code, Keychain::absent);
    EXPECT_LT(std::chrono::steady_clock::now() - start, 2 * deadline);
    Keychain::install(nullptr);
}

int runInSession(int argc, char** argv)
{
    const ScratchFolder scratch;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove("XDG_DATA_HOME");
    const QString script =
        QStringLiteral(
            "gnome-keyring-daemon --foreground --unlock --components=secrets < <(printf '\\n') >/dev/null 2>&1 & "
            "export %1=$!; for i in $(seq 200); do dbus-send --session --print-reply "
            "--dest=org.freedesktop.DBus / org.freedesktop.DBus.NameHasOwner "
            "string:org.freedesktop.secrets | grep -q true && break; sleep 0.1; done; exec \"$0\" \"$@\"")
            .arg(QLatin1String(keyringProcess));
    return test::runInOwnSession(argc, argv, scratch, environment, {}, {"bash", "-c", script});
}

} // namespace
} // namespace lodestar

int main(int argc, char** argv)
{
    return lodestar::test::mainInOwnSession(argc, argv, lodestar::keyringProcess, &lodestar::runInSession);
}
