// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Tools/Stage/SceneStage.h"

#include <QDir>
#include <QImage>

namespace lodestar::scenes
{

/// The picture in 256 colours, which takes a third of the space. Takes the most frequent colours that are not too close
/// to one another: screens are flat, so that only the edges of letters lose their own colour.
QImage withPalette(const QImage& image);

/// Makes the tour's six pictures, ts1.png to ts6.png, from the application's own screens and the tour's words: the
/// English ones, and those of every other language in a folder with the language's code. False when a picture cannot be
/// written.
bool writeTourPictures(SceneStage& stage, const QDir& folder);

} // namespace lodestar::scenes
