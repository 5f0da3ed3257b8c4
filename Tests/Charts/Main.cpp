// SPDX-License-Identifier: Apache-2.0
#include <QGuiApplication>
#include <gtest/gtest.h>

/// Pictures come from the software renderer without a display, wherever the tests are started.
int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    testing::InitGoogleTest(&argc, argv);
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
