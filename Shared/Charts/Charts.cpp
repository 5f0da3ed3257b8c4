// SPDX-License-Identifier: Apache-2.0
#include "Charts/Charts.h"

#include <QQmlEngine>

// The build generates this function. The linker leaves a static library's registration out unless code names it.
void qml_register_types_Lodestar_Charts();

namespace lodestar
{

void installCharts(QQmlEngine& engine)
{
    [[maybe_unused]] static volatile auto registration = &qml_register_types_Lodestar_Charts;
    engine.addImportPath(QStringLiteral("qrc:/"));
}

} // namespace lodestar
