// SPDX-License-Identifier: Apache-2.0
#include "Feedback/UI/FeedbackUI.h"

#include "Kit/Core/Kit.h"

#include <QQmlEngine>

// Generated with the module. A static library's registration is left out by the linker unless it is named.
void qml_register_types_Lodestar_Feedback();

namespace lodestar
{

void installFeedbackUI(QQmlEngine& engine)
{
    [[maybe_unused]] static volatile auto registration = &qml_register_types_Lodestar_Feedback;
    installKit(engine);
}

} // namespace lodestar
