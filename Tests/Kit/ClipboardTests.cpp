// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/Clipboard.h"
#include "Kit/Core/MainLoop.h"
#include "Kit/Core/Toasts.h"
#include "Kit/Core/WindowDialogs.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QProcess>
#include <QTest>
#include <gtest/gtest.h>

#include <string_view>

// The system's clipboard on a real X server, read and taken by another process.
namespace lodestar
{
namespace
{

constexpr auto serverVariable = "LODESTAR_TEST_X_SERVER";

QByteArray readByAnother()
{
    QProcess tool;
    tool.start("xclip", {"-selection", "clipboard", "-out", "-target", "UTF8_STRING"});
    // This process answers the other one from its event loop.
    EXPECT_TRUE(QTest::qWaitFor([&] { return tool.state() == QProcess::NotRunning; }, 20'000));
    return tool.readAllStandardOutput();
}

TEST(ClipboardTests, AnotherProcessReadsWhatWasCopied)
{
    const QString text = QStringLiteral("Event Text: Netzteil \u201e2\u201c \u05D0\u05D1~\nline 2");
    Clipboard::copy(text, "2 rows");
    EXPECT_EQ(Toasts::shared().text(), "Copied 2 rows");
    EXPECT_EQ(QString::fromUtf8(readByAnother()), text);
    Clipboard::copy(QString(100'000, 'x'));
    EXPECT_EQ(Toasts::shared().text(), "Copied " + QString(59, 'x') + QChar(0x2026));
    EXPECT_EQ(readByAnother().size(), 100'000);
}

TEST(ClipboardTests, ATextThatIsNotThereAfterwardsIsNeverCalledACopy)
{
    Toasts::shared().dismiss();
    QClipboard* const clipboard = QGuiApplication::clipboard();
    const auto taker = QObject::connect(clipboard, &QClipboard::dataChanged, clipboard, [clipboard] {
        if (clipboard->text() == "mine") {
            clipboard->setText("theirs");
        }
    });
    Clipboard::copy("mine");
    QObject::disconnect(taker);
    EXPECT_FALSE(Toasts::shared().isPresented());
    EXPECT_TRUE(WindowDialogs::shared().alert().title().startsWith("Could not be copied: "));
    EXPECT_EQ(readByAnother(), "theirs");
}

int runInServer(int argc, char** argv)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(serverVariable, "1");
    environment.insert("QT_QPA_PLATFORM", "xcb");
    QStringList arguments{"--auto-servernum"};
    for (int index = 0; index < argc; ++index) {
        arguments << QString::fromLocal8Bit(argv[index]);
    }
    QProcess server;
    server.setProcessEnvironment(environment);
    server.setProcessChannelMode(QProcess::ForwardedChannels);
    server.start("xvfb-run", arguments);
    const bool finished = server.waitForFinished(90'000);
    return finished && server.exitStatus() == QProcess::NormalExit ? server.exitCode() : 1;
}

} // namespace
} // namespace lodestar

int main(int argc, char** argv)
{
    const bool lists = argc > 1 && std::string_view(argv[1]).starts_with("--gtest_list_tests");
    if (!lists && !qEnvironmentVariableIsSet(lodestar::serverVariable)) {
        return lodestar::runInServer(argc, argv);
    }
    testing::InitGoogleTest(&argc, argv);
    if (lists) {
        return RUN_ALL_TESTS();
    }
    const QGuiApplication application(argc, argv);
    const lodestar::MainLoop mainLoop;
    return RUN_ALL_TESTS();
}
