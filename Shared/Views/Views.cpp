// SPDX-License-Identifier: Apache-2.0
#include "Views/Views.h"

#include "Charts/Charts.h"
#include "Kit/Core/Kit.h"

#include <QQmlEngine>

// Generated with the module. A static library's registration is left out by the linker unless it is named.
void qml_register_types_Lodestar_Views();

namespace lodestar
{

void installViews(QQmlEngine& engine)
{
    [[maybe_unused]] static volatile auto registration = &qml_register_types_Lodestar_Views;
    installKit(engine);
    installCharts(engine);
}

} // namespace lodestar
