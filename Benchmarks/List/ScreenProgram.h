// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Benchmarks/Program.h"
#include "Kit/Core/MainLoop.h"

#include <QGuiApplication>

namespace lodestar::bench
{

/// What a program needs in order to draw without a display. Make it first in `main`.
class Screen
{
public:
    Screen(int& argc, char** argv) : m_application(withoutDisplay(argc), argv) {}

private:
    static int& withoutDisplay(int& argc)
    {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qputenv("QT_QUICK_BACKEND", "software");
        return argc;
    }

    QGuiApplication m_application;
    MainLoop m_mainLoop;
};

} // namespace lodestar::bench
