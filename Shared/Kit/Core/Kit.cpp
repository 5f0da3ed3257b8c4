// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/Kit.h"

#include "Kit/Core/AccessibleTree.h"
#include "Kit/Core/IconProvider.h"
#include "Kit/Core/ShadowProvider.h"
#include "Kit/Core/UIFont+System.h"
#include "Kit/Core/WheelScroll.h"

#include <QQmlEngine>
#include <QtGlobal>

extern void qml_register_types_Lodestar_Kit();

namespace lodestar
{

void installKit(QQmlEngine& engine)
{
    // The module is a static library; naming the generated function makes the linker keep its registration.
    [[maybe_unused]] static volatile auto registration = &qml_register_types_Lodestar_Kit;
    UIFont::install();
    installAccessibleTree();
    WheelScroll::install();
    if (engine.imageProvider(QStringLiteral("icon")) != nullptr) {
        return; // another module that uses the kit has installed the rest
    }
    engine.addImportPath(QStringLiteral("qrc:/"));
    engine.addImageProvider(QStringLiteral("icon"), new IconProvider);
    engine.addImageProvider(QStringLiteral("shadow"), new ShadowProvider);
}

} // namespace lodestar
