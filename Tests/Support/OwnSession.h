// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/Languages.h"
#include "Kit/Core/MainLoop.h"
#include "Tests/Support/ScratchFolder.h"

#include <QCoreApplication>
#include <QProcess>
#include <gmock/gmock.h>

#include <fstream>
#include <string_view>

namespace lodestar::test
{

/// A session bus that starts nothing by itself, so that a test says when there is a service: another one would come
/// for a question before ours is there, and in the place of ours when that is gone.
inline constexpr auto quietBus = R"(<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
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

/// Runs this program anew in a session bus of its own, with a home that is a new folder. `around` is the command that
/// the bus stands in, if any; `within` is what begins the program within it, if not the program itself.
inline int runInOwnSession(int argc, char** argv, const ScratchFolder& home, QProcessEnvironment environment,
                           QStringList around, const QStringList& within)
{
    const QString folder = QString::fromStdString(home.path());
    environment.insert("HOME", folder);
    environment.insert("XDG_RUNTIME_DIR", folder);
    std::ofstream(home.file("bus.conf")) << quietBus;
    QStringList command = std::move(around);
    command << "dbus-run-session"
            << "--config-file" << folder + "/bus.conf"
            << "--" << within;
    for (int index = 0; index < argc; ++index) {
        command << QString::fromLocal8Bit(argv[index]);
    }
    QProcess session;
    session.setProcessEnvironment(environment);
    session.setProcessChannelMode(QProcess::ForwardedChannels);
    session.start(command.takeFirst(), command);
    const bool finished = session.waitForFinished(90'000);
    return finished && session.exitStatus() == QProcess::NormalExit ? session.exitCode() : 1;
}

/// The `main` of such a program: `begin` starts the session, in which the variable is set.
inline int mainInOwnSession(int argc, char** argv, const char* variable, int (*begin)(int, char**))
{
    const bool lists = argc > 1 && std::string_view(argv[1]).starts_with("--gtest_list_tests");
    if (!lists && !qEnvironmentVariableIsSet(variable)) {
        return begin(argc, argv);
    }
    ::testing::InitGoogleMock(&argc, argv);
    const QCoreApplication application(argc, argv);
    Languages::use({QStringLiteral("en")});
    const MainLoop mainLoop;
    return RUN_ALL_TESTS();
}

} // namespace lodestar::test
