// SPDX-License-Identifier: Apache-2.0
#include "Views/Views.h"

#include "Charts/Charts.h"
#include "Kit/Core/Kit.h"

#include <QQmlEngine>

// The build generates this function. The linker leaves a static library's registration out unless code names it.
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
