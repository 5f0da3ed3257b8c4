// SPDX-License-Identifier: Apache-2.0
#include "Views/About/TextViewOutlet.h"

#include "Kit/Core/OnMain.h"

#include <utility>

namespace lodestar
{
namespace
{

// In characters. A piece ends at the first empty line after `shortestPiece`, and at the latest at `longestPiece`, there
// at a line's end if possible.
constexpr qsizetype shortestPiece = 400;
constexpr qsizetype longestPiece = 4000;

QStringList piecesOf(const QString& text)
{
    QStringList pieces;
    qsizetype start = 0;
    while (start < text.size()) {
        qsizetype end = text.indexOf(QLatin1String("\n\n"), start + shortestPiece);
        end = end < 0 ? text.size() : end + 1;
        if (end - start > longestPiece) {
            const qsizetype line = text.lastIndexOf(QLatin1Char('\n'), start + longestPiece);
            end = line > start ? line : start + longestPiece;
        }
        pieces.append(text.mid(start, end - start));
        // The line feed between two pieces is dropped.
        start = end < text.size() && text[end] == QLatin1Char('\n') ? end + 1 : end;
    }
    return pieces;
}

} // namespace

void TextViewOutlet::setAttributedText(const QString& text)
{
    onMain(this, [text](TextViewOutlet& outlet) {
        outlet.m_attributedText = text;
        if (!std::exchange(outlet.m_willCut, true)) {
            MainQueue::shared().async([guard = QPointer<TextViewOutlet>(&outlet)] {
                if (guard) {
                    guard->cut();
                }
            });
        }
    });
}

void TextViewOutlet::cut()
{
    m_willCut = false;
    m_pieces = piecesOf(m_attributedText);
    Q_EMIT piecesChanged();
}

} // namespace lodestar
