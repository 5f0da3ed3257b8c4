// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/LineText.h"

#include "Kit/Core/Appearance.h"

#include <algorithm>

namespace lodestar
{
namespace
{

/// The first of the isolates' controls is as strong as the text's own first letter.
constexpr char16_t firstStrongIsolate = u'\u2068';
constexpr char16_t popIsolate = u'\u2069';

bool endsLine(QChar each)
{
    return each == u'\n' || each == u'\r' || each == u'\t' || each == u'\v' || each == u'\f' || each == u'\u0085' ||
           each == QChar::LineSeparator || each == QChar::ParagraphSeparator;
}

/// Embeddings, overrides and isolates. One without its end would reach into the sentence.
bool turnsDirection(QChar each)
{
    return (each >= u'\u202A' && each <= u'\u202E') || (each >= u'\u2066' && each <= u'\u2069');
}

bool runsRightToLeft(QChar each)
{
    const QChar::Direction direction = each.direction();
    // A half of a pair may belong to any script.
    return direction == QChar::DirR || direction == QChar::DirAL || direction == QChar::DirAN || each.isSurrogate();
}

} // namespace

QString oneLine(const QString& text)
{
    QString line;
    line.reserve(text.size() + 2);
    for (const QChar each : text) {
        if (endsLine(each)) {
            if (!line.endsWith(u' ')) {
                line.append(u' ');
            }
        } else if (each.category() != QChar::Other_Control && !turnsDirection(each)) {
            line.append(each);
        }
    }
    return line;
}

QString isolated(const QString& text)
{
    const QString line = oneLine(text);
    // The typeface lacks the controls, and a line with a character of another face sits lower. They are left out where
    // they would change nothing.
    const bool needed =
        !line.isEmpty() && (Appearance::shared().isMirrored() || std::ranges::any_of(line, runsRightToLeft));
    return needed ? QChar(firstStrongIsolate) + line + QChar(popIsolate) : line;
}

QString shortened(const QString& text, qsizetype length)
{
    if (text.size() <= length) {
        return text;
    }
    QString shown = text.left(length - 1);
    if (!shown.isEmpty() && shown.back().isHighSurrogate()) {
        shown.chop(1);
    }
    return shown + QChar(0x2026);
}

} // namespace lodestar
