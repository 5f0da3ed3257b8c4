// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Views/Common/Scenes.h"

#include <QUrl>

#include <functional>

namespace lodestar::FleetFile
{

/// The bytes of a file that may be a fleet sheet, or why they cannot be had. Main thread.

/// Asks for a file. Not called when the person cancels.
void choose(std::function<void(FleetFileInput)> chosen);
/// Reads a file that was dropped on the window.
FleetFileInput read(const QUrl& url);

} // namespace lodestar::FleetFile
