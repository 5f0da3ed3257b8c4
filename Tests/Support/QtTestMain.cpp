// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/Languages.h"
#include "Kit/Core/MainLoop.h"

#include <QGuiApplication>
#include <QLoggingCategory>
#include <gtest/gtest.h>

/// The main of test programs that need Qt: no display, the software renderer, the main queue drained by Qt's loop. It
/// can be started by hand with another platform to watch.
int main(int argc, char** argv)
{
    const auto preset = [](const char* name, const char* value) {
        if (!qEnvironmentVariableIsSet(name)) {
            qputenv(name, value);
        }
    };
    preset("QT_QPA_PLATFORM", "offscreen");
    preset("QT_QUICK_BACKEND", "software");
    preset("QT_QUICK_CONTROLS_STYLE", "Basic");
    QLoggingCategory::setFilterRules(QStringLiteral("qt.qpa.*=false"));
    testing::InitGoogleTest(&argc, argv);
    const QGuiApplication application(argc, argv);
    lodestar::Languages::use({QStringLiteral("en")});
    const lodestar::MainLoop mainLoop;
    return RUN_ALL_TESTS();
}
