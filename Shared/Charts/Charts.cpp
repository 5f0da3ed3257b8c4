// SPDX-License-Identifier: Apache-2.0
#include "Charts/Charts.h"

#include <QQmlEngine>

// Generated with the module. A static library's registration is left out by the linker unless it is named.
void qml_register_types_Lodestar_Charts();

namespace lodestar
{

void installCharts(QQmlEngine& engine)
{
    [[maybe_unused]] static volatile auto registration = &qml_register_types_Lodestar_Charts;
    engine.addImportPath(QStringLiteral("qrc:/"));
}

} // namespace lodestar
