// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>

namespace lodestar
{

struct PlotModel;

/// Draws a chart in the light appearance, with its legend, below a title and a subtitle, and writes it as a PNG of
/// 2560 × 1440 pixels. Main thread.
QByteArray chartPicture(const PlotModel& model, const QString& title, const QString& subtitle);

} // namespace lodestar
