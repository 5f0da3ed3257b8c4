// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

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
/// The text as one line without control characters. For names and texts of a console that stand alone.
QString oneLine(const QString& text);
/// The same, isolated where it or the language runs from right to left, so that
/// its direction and line ends stay its own. For names and texts of a console within a sentence.
QString isolated(const QString& text);

} // namespace lodestar
