// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace lodestar
{

/// The text as one line without control characters. For names and texts of a console that stand alone.
QString oneLine(const QString& text);
/// The same, isolated where it or the language runs from right to left, so that its direction and line ends stay its
/// own. For names and texts of a console within a sentence.
QString isolated(const QString& text);
/// At most `length` characters, the last of which then tells that something was cut.
QString shortened(const QString& text, qsizetype length);

} // namespace lodestar
