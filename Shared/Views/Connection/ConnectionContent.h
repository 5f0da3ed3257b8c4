// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Reading.h"
#include "Views/Connection/ConnectionSection.h"

namespace lodestar
{

using ConnectionContent = QList<ConnectionSection>;

/// All that the connection screen says of the reading. Pure.
ConnectionContent connectionContent(const Reading& reading, WallTime now);
/// The same as plain text, one row a line.
QString connectionText(const ConnectionContent& content);
int rowCount(const ConnectionContent& content);

} // namespace lodestar
