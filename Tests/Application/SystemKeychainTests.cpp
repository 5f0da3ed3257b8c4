// SPDX-License-Identifier: Apache-2.0
#include "Tests/Application/SystemKeychainTests.h"

#include "Application/Adapters/SystemKeychain.h"
#include "Tests/Support/StoredPassword.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <gmock/gmock.h>

#include <cstdlib>
#include <iostream>
#include <sys/socket.h>
#include <sys/un.h>
#include <type_traits>
#include <unistd.h>

namespace lodestar::test
{

namespace
{

constexpr std::chrono::milliseconds deadline{1500};

/// Runs the call, waits for its answer and prints it.
template <typename Function>
void tell(const char* call, const Function& ask)
{
    QElapsedTimer timer;
    timer.start();
    const auto result = ask();
    const qint64 elapsed = timer.elapsed();
    std::string text = result ? "[]" : "error " + std::to_string(result.error().code);
    if constexpr (std::is_same_v<decltype(result), const Result<std::string>>) {
        if (result) {
            text = "[" + result.value() + "]";
        }
    }
    std::cout << call << ' ' << text
              << (elapsed < deadline.count()       ? " in time"
                  : elapsed < 2 * deadline.count() ? " at deadline"
                                                   : " late")
              << '\n';
}

} // namespace

int runKeychainCalls()
{
    auto made = std::make_unique<SystemKeychain>(deadline);
    const SystemKeychain& keychain = *made;
    Keychain::install(std::move(made));
    const auto read = [&](const char* account) {
        tell("read", [&] { return readPassword("Lodestar test", account); });
    };
    const auto write = [&](const std::string& password) {
        tell("write", [&] { return writePassword(password, "Lodestar test", "Admin"); });
    };
    read("Admin");
    write("p\u00E4ss 'w\u014Drd' ");
    read("Admin");
    read("Nobody");
    write(std::string("cut\0short", 9));
    read("Admin");
    write("");
    read("Admin");
    if (keychain.owesAnswer()) {
        std::cout.flush();
        std::_Exit(0);
    }
    Keychain::install(nullptr);
    return 0;
}

namespace
{

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

class SystemKeychainTests : public ::testing::Test
{
protected:
    static QStringList run(const QString& program, const QStringList& arguments, const QProcessEnvironment& environment)
    {
        QProcess process;
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForFinished(60'000));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(process.exitCode(), 0);
        return QString::fromUtf8(process.readAllStandardOutput()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }

    QProcessEnvironment environmentWithBus(const QString& address) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("HOME"), m_home.path());
        environment.remove(QStringLiteral("XDG_DATA_HOME"));
        environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_home.path());
        environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), address);
        return environment;
    }

    static std::vector<std::string> lines(const QStringList& output)
    {
        std::vector<std::string> result;
        for (const QString& line : output) {
            result.push_back(line.toStdString());
        }
        return result;
    }

    QTemporaryDir m_home;
    const QString m_self = QCoreApplication::applicationFilePath();
};
TEST_F(SystemKeychainTests, FailsSoonWithoutAService)
{
    const auto output = run(m_self, {QStringLiteral("--keychain")},
                            environmentWithBus(QStringLiteral("unix:path=") + m_home.filePath(QStringLiteral("none"))));
    ASSERT_EQ(output.size(), 8);
    EXPECT_THAT(lines(output), Each(HasSubstr(" error ")));
    EXPECT_THAT(lines(output), Each(HasSubstr("in time")));
}

TEST_F(SystemKeychainTests, AServiceThatNeverAnswersCostsOneDeadline)
{
    // A bus that takes the connection and then says nothing.
    const QByteArray path = QFile::encodeName(m_home.filePath(QStringLiteral("bus")));
    const int listener = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    ASSERT_LT(path.size(), static_cast<qsizetype>(sizeof address.sun_path));
    std::copy(path.begin(), path.end(), address.sun_path);
    ASSERT_EQ(::bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    ASSERT_EQ(::listen(listener, 8), 0);

    const auto output = lines(run(m_self, {QStringLiteral("--keychain")},
                                  environmentWithBus(QStringLiteral("unix:path=") + QFile::decodeName(path))));
    ::close(listener);
    ASSERT_EQ(output.size(), 8U);
    EXPECT_EQ(output[0], "read error " + std::to_string(SystemKeychain::timedOut) + " at deadline");
    EXPECT_THAT(std::vector(output.begin() + 1, output.end()), Each(HasSubstr("in time")));
    EXPECT_THAT(output, Each(HasSubstr(" error -")));
}

} // namespace

} // namespace lodestar::test
