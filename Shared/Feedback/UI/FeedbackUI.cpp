// SPDX-License-Identifier: Apache-2.0
#include "Feedback/UI/FeedbackUI.h"

#include "Kit/Core/Kit.h"

#include <QQmlEngine>

// Generated with the module. Unless the program names the registration of a static library, the linker leaves it out.
void qml_register_types_Lodestar_Feedback();

namespace lodestar
{

void installFeedbackUI(QQmlEngine& engine)
{
    [[maybe_unused]] static volatile auto registration = &qml_register_types_Lodestar_Feedback;
    installKit(engine);
}

} // namespace lodestar
