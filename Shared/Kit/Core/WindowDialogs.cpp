// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/WindowDialogs.h"

#include "Kit/Core/MakeItem.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include <utility>

namespace lodestar
{
namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(lodestar::WindowDialogs)
};

} // namespace

WindowDialogs& WindowDialogs::shared()
{
    // Never deleted: nothing orders the end of the process's scenes and this.
    static auto* const dialogs = new WindowDialogs;
    return *dialogs;
}

void WindowDialogs::tell(const QString& sentence)
{
    makeView();
    m_alert.present(sentence, {}, {{Words::tr("OK")}}, 0, {});
}

void WindowDialogs::ask(const QString& question, const QString& message, const MenuChoice& action,
                        std::function<void()> chosen)
{
    makeView();
    m_alert.present(question, message, {{Words::tr("Cancel")}, action}, 0, [chosen = std::move(chosen)](int index) {
        if (index == 1) {
            chosen();
        }
    });
}

QQuickWindow* WindowDialogs::window()
{
    if (auto* const focused = qobject_cast<QQuickWindow*>(QGuiApplication::focusWindow())) {
        return focused;
    }
    for (QWindow* const each : QGuiApplication::topLevelWindows()) {
        auto* const quick = qobject_cast<QQuickWindow*>(each);
        if (quick != nullptr && quick->isVisible()) {
            return quick;
        }
    }
    return nullptr;
}

QQmlEngine* WindowDialogs::engineOf(const QQuickWindow& window)
{
    for (const QQuickItem* const item : window.contentItem()->childItems()) {
        if (QQmlEngine* const engine = qmlEngine(item)) {
            return engine;
        }
    }
    return nullptr;
}

void WindowDialogs::makeView()
{
    QQuickWindow* const front = window();
    QQmlEngine* const engine = front != nullptr ? engineOf(*front) : nullptr;
    if (engine == nullptr || (m_view && m_view->window() == front)) {
        return;
    }
    delete m_view;
    QQmlComponent component(engine, QUrl(QStringLiteral("qrc:/Lodestar/Kit/WindowAlert.qml")));
    m_view = makeItem(component, {{QStringLiteral("outlet"), QVariant::fromValue(&m_alert)}}, *front->contentItem());
}

} // namespace lodestar
