// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Tools/Stage/SceneStage.h"

#include <QDir>

namespace lodestar::scenes
{

/// Makes the tour's six pictures, ts1.png to ts6.png, from the application's own screens and the tour's words. False
/// when a picture cannot be written.
bool writeTourPictures(SceneStage& stage, const QDir& folder);

} // namespace lodestar::scenes
