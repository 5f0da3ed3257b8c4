// SPDX-License-Identifier: Apache-2.0
#include "Charts/Charts.h"

#include <QtGlobal>

// Generated with the module.
void qml_register_types_Lodestar_Charts();

namespace lodestar
{

void registerCharts()
{
    static const bool registered = [] {
        qml_register_types_Lodestar_Charts();
        return true;
    }();
    Q_UNUSED(registered)
}

} // namespace lodestar
