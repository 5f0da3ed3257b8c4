// SPDX-License-Identifier: Apache-2.0
#include "Views/Views.h"

#include "Charts/Charts.h"
#include "Kit/Core/KeyTable.h"
#include "Kit/Core/Kit.h"

#include <QQmlEngine>

#include <array>

// The build generates this function. The linker leaves a static library's registration out unless code names it.
void qml_register_types_Lodestar_Views();

namespace lodestar
{
namespace
{

constexpr std::array keys = {
    KeyEntry{"add", "Ctrl+N", KeyPlace::Screen, QT_TRANSLATE_NOOP("KeyTable", "Add console")},
    KeyEntry{"find", "Ctrl+K", KeyPlace::Everywhere, QT_TRANSLATE_NOOP("KeyTable", "Find anywhere")},
    KeyEntry{"settings", "Ctrl+,", KeyPlace::Everywhere, QT_TRANSLATE_NOOP("KeyTable", "Settings")},
    KeyEntry{"feedback", "Ctrl+Shift+F", KeyPlace::Everywhere, QT_TRANSLATE_NOOP("KeyTable", "Feedback")},
};

} // namespace

void installViews(QQmlEngine& engine)
{
    [[maybe_unused]] static volatile auto registration = &qml_register_types_Lodestar_Views;
    installKit(engine);
    installCharts(engine);
    KeyTable::shared().add(keys);
}

} // namespace lodestar
