// SPDX-License-Identifier: Apache-2.0
#include "Application/AttentionOpener.h"

#include "Application/FeedbackWindow.h"
#include "Application/Model/Setting.h"
#include "Application/WindowPlace.h"
#include "Kit/Core/TabBarController.h"
#include "Platform/UserDefaults.h"
#include "Views/Attention/AttentionViewController.h"

#include <QGuiApplication>

namespace lodestar
{

AttentionOpener::AttentionOpener(FeedbackWindow& window) : m_window(window)
{
    connect(&window, &FeedbackWindow::rootViewControllerChanged, this, [this] {
        if (m_isWanted) {
            select();
        }
    });
    // Queued, so that the lock, which comes at the same occasion, is there before.
    connect(
        qGuiApp, &QGuiApplication::applicationStateChanged, this,
        [this](Qt::ApplicationState state) {
            if (state == Qt::ApplicationActive) {
                becameActive();
            }
        },
        Qt::QueuedConnection);
}

void AttentionOpener::open()
{
    select();
    m_isWanted = mainInterface() == nullptr || (UserDefaults::standard().boolForKey(Setting::requirePassword) &&
                                                QGuiApplication::applicationState() != Qt::ApplicationActive);
    bringToFront(m_window);
}

void AttentionOpener::becameActive()
{
    if (mainInterface() != nullptr) {
        m_isWanted = false; // no lock came
    }
}

void AttentionOpener::select()
{
    if (TabBarController* const tabs = mainInterface(); tabs != nullptr && showAttention(*tabs) != nullptr) {
        m_isWanted = false;
    }
}

TabBarController* AttentionOpener::mainInterface() const
{
    return qobject_cast<TabBarController*>(m_window.rootViewController());
}

} // namespace lodestar
