// SPDX-License-Identifier: Apache-2.0
#include "Views/About/ReadingController.h"

#include "Kit/Core/Clipboard.h"
#include "Kit/Core/LineText.h"

namespace lodestar
{
namespace
{

/// Of a text, the menu shows its beginning.
constexpr qsizetype longestShown = 80;

enum Choice { CopyChoice, CopyAllChoice, CancelChoice };

} // namespace

QString ReadingController::textOf(int first, int last) const
{
    return pieces().mid(qMax(0, first), qMax(0, last - qMax(0, first) + 1)).join(QLatin1Char('\n'));
}

void ReadingController::presentCopyMenu(int first, int last)
{
    const QString text = textOf(first, last);
    if (text.isEmpty()) {
        return;
    }
    m_copyMenu.present(oneLine(shortened(text.trimmed(), longestShown)), {},
                       {{.title = tr("Copy"), .imageName = QStringLiteral("copy")},
                        {.title = tr("Copy All"), .imageName = QStringLiteral("release_notes")},
                        {.title = tr("Cancel")}},
                       CancelChoice, [this, first, last](int choice) {
                           if (choice == CopyChoice) {
                               copy(first, last);
                           } else if (choice == CopyAllChoice) {
                               copy(0, static_cast<int>(pieces().size()) - 1);
                           }
                       });
}

void ReadingController::copy(int first, int last) const
{
    if (const QString text = textOf(first, last); !text.isEmpty()) {
        Clipboard::copy(text, first <= 0 && last >= pieces().size() - 1 ? title() : QString());
    }
}

} // namespace lodestar
