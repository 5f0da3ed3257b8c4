// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/Toasts.h"

#include <QJSEngine>
#include <QTimerEvent>

namespace lodestar
{
namespace
{

constexpr int shownFor = 1600; ///< milliseconds

} // namespace

Toasts& Toasts::shared()
{
    // Never deleted: nothing orders the end of the process's scenes and this.
    static auto* const toasts = new Toasts;
    return *toasts;
}

Toasts* Toasts::create(QQmlEngine* /*qml*/, QJSEngine* /*js*/)
{
    QJSEngine::setObjectOwnership(&shared(), QJSEngine::CppOwnership);
    return &shared();
}

void Toasts::show(const QString& text)
{
    m_text = text;
    m_timer.start(shownFor, this);
    Q_EMIT changed();
}

void Toasts::dismiss()
{
    m_timer.stop();
    Q_EMIT changed();
}

void Toasts::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_timer.timerId()) {
        dismiss();
    }
}

} // namespace lodestar
