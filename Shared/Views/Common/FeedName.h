// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/LineText.h"

#include <QString>
#include <QStringList>

#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

/// A feed's name within a sentence, "partitions", and at its beginning, "Partitions". `type` is an `ObjectType`.
QString feedName(std::string_view type);
QString feedNameAtStart(std::string_view type);
/// "Partitions not read", "Partitions and groups not read", "4 of 6 feeds not read", "Nothing of it could be read".
QString feedsNotRead(const std::vector<std::string_view>& types);
/// "A and B", "A, B and C", from four "A, B and 2 more".
QString joinedList(const QStringList& names);
/// The text as one line, no longer than a row can show.
QString rowText(const std::string& text);

} // namespace lodestar
