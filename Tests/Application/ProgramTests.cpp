// SPDX-License-Identifier: Apache-2.0
// The program as a person starts it: from the build and as it is installed.
#include "Application/Model/Corvel.h"
#include "Application/Model/StoreStack.h"
#include "Simulator/SimulatorProcess.h"
#include "Tests/Support/ScratchFolder.h"

#include <QProcess>
#include <QTest>
#include <gmock/gmock.h>

namespace lodestar
{
namespace
{

using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

constexpr int patience = 60'000; ///< milliseconds; a sanitizer makes the program many times slower

class ProgramTest : public testing::Test
{
protected:
    ProgramTest() { std::filesystem::create_directories(store().parent_path()); }

    std::filesystem::path store() const { return scratch.path() / "data/Documents/Lodestar.sqlite"; }
    std::string log() const { return scratch.read("data/Logs/lodestar.log"); }
    bool answersFurtherStarts() const { return std::filesystem::exists(scratch.file("data/Lodestar.window")); }

    /// Starts a program on the test's folder, away from the person's own files and session bus.
    void start(QProcess& process, const QString& program = QStringLiteral(LODESTAR_PROGRAM)) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("HOME", QString::fromStdString(scratch.file("home")));
        environment.insert("XDG_RUNTIME_DIR", QString::fromStdString(scratch.path()));
        environment.insert("DBUS_SESSION_BUS_ADDRESS", "disabled:");
        process.setProcessEnvironment(environment);
        process.start(program, {"--data", QString::fromStdString(scratch.file("data"))});
        ASSERT_TRUE(process.waitForStarted(patience));
    }

    static void terminate(QProcess& process)
    {
        process.terminate();
        ASSERT_TRUE(process.waitForFinished(patience));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(process.exitCode(), 0);
    }

    std::unique_ptr<ObjectContext> openStore() const
    {
        auto opened = ObjectContext::open(store(), StoreStack::managedObjectModel());
        EXPECT_TRUE(opened.ok());
        return opened ? std::move(opened).value() : nullptr;
    }

    /// "name version" of the one stored console.
    std::string storedConsole() const
    {
        const auto context = openStore();
        const auto objects = context->fetchAll(std::string(Corvel::entityName)).value();
        EXPECT_EQ(objects.size(), 1U);
        const auto corvel = std::static_pointer_cast<Corvel>(objects.at(0));
        return corvel->name().value_or("") + " " + corvel->version().value_or("");
    }

    const ScratchFolder scratch;
};

TEST_F(ProgramTest, KeepsWhatItKnowsWhenItIsToldToEndAndAFurtherStartOnlyRaisesIt)
{
    QProcess first;
    start(first);
    ASSERT_TRUE(QTest::qWaitFor([this] { return answersFurtherStarts(); }, patience)) << log();

    QProcess second;
    start(second);
    ASSERT_TRUE(second.waitForFinished(patience));
    EXPECT_EQ(second.exitCode(), 1);
    EXPECT_THAT(second.readAllStandardError().toStdString(), HasSubstr("Lodestar is running already."));
    QByteArray said;
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            said += first.readAllStandardError();
            return said.contains("raise()"); // so the platform without windows says that it was asked
        },
        patience))
        << said.toStdString();

    terminate(first);
    const std::string lines = log();
    const auto session = lines.find("session started with an application key, mode 2, reports on shake");
    const auto list = lines.find("CorvelListViewController instantiation");
    EXPECT_TRUE(session < list && list != std::string::npos) << "the session starts before the first screen\n" << lines;
    EXPECT_THAT(scratch.read("data/Lodestar.state"), HasSubstr("%20844"));
    EXPECT_THAT(scratch.read("data/Lodestar.defaults"), HasSubstr("initialLoad=true"));
    EXPECT_THAT(storedConsole(), StartsWith("Demo Corvel"));
}

TEST_F(ProgramTest, EndsWithALineAndLeavesAStoreThatItCannotReadAsItIs)
{
    const std::string bytes(4096, 'x');
    std::ofstream(store(), std::ios::binary) << bytes;
    QProcess process;
    start(process);
    ASSERT_TRUE(process.waitForFinished(patience));
    EXPECT_EQ(process.exitStatus(), QProcess::CrashExit);
    EXPECT_THAT(process.readAllStandardError().toStdString(), HasSubstr("Lodestar cannot keep its consoles and ends"));
    EXPECT_THAT(log(), HasSubstr("Unresolved error YOUR_ERROR_DOMAIN 9999"));
    EXPECT_EQ(scratch.read("data/Documents/Lodestar.sqlite"), bytes);
    std::string crash; // of which the next start makes a report
    for (const auto& file : std::filesystem::directory_iterator(scratch.file("data/Crashes"))) {
        crash += scratch.read("data/Crashes/" + file.path().filename().string());
    }
    EXPECT_THAT(crash, HasSubstr("Failed to initialize the application's saved data"));
}

TEST_F(ProgramTest, RefreshesAStoredConsoleWhereItIsInstalled)
{
    const QString prefix = QString::fromStdString(scratch.file("usr"));
    ASSERT_EQ(QProcess::execute(QStringLiteral(CMAKE_PROGRAM),
                                {"--install", QStringLiteral(BUILD_FOLDER), "--prefix", prefix}),
              0);
    const std::string entry = scratch.read("usr/share/applications/org.ornis.Lodestar.desktop");
    EXPECT_THAT(entry, HasSubstr("\nExec=lodestar\n"));
    EXPECT_THAT(entry, HasSubstr("\nIcon=org.ornis.Lodestar\n"));
    EXPECT_FALSE(scratch.read("usr/share/icons/hicolor/scalable/apps/org.ornis.Lodestar.svg").empty());

    simulator::SimulatorProcess consoles{simulator::Settings{}};
    std::ofstream(scratch.file("data/Lodestar.defaults")) << "[Booleans]\ninitialLoad=true\n"; // no demonstration
    {
        const auto context = openStore();
        const auto corvel = std::static_pointer_cast<Corvel>(context->insertNewObject(Corvel::entityName));
        corvel->setName("Harbour A");
        corvel->setAddress(consoles.address());
        corvel->setUsername(consoles.user());
        corvel->setPassword(consoles.password());
        ASSERT_TRUE(context->save().ok());
    }
    QProcess process;
    start(process, prefix + "/bin/lodestar");
    ASSERT_TRUE(QTest::qWaitFor([&] { return log().find("Parsing version") != std::string::npos; }, patience)) << log();
    terminate(process);
    EXPECT_THAT(storedConsole(), StartsWith("Harbour A V"));

    const auto keyOf = [](const simulator::RecordedRequest& request) { return request.header("X-API-Session"); };
    EXPECT_THAT(log(), Not(HasSubstr(consoles.password())));
    EXPECT_THAT(log(), Not(HasSubstr(keyOf(consoles.requests().back()).value_or("(no key)"))));
}

} // namespace
} // namespace lodestar
