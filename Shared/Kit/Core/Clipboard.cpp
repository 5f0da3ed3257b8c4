// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/Clipboard.h"

#include "Kit/Core/LineText.h"
#include "Kit/Core/Toasts.h"
#include "Kit/Core/WindowDialogs.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>

namespace lodestar
{
namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(lodestar::Clipboard)
};

constexpr qsizetype longestSaid = 60;

} // namespace

void Clipboard::copy(const QString& text, const QString& said)
{
    QClipboard* const clipboard = QGuiApplication::clipboard();
    clipboard->setText(text);
    // A system may refuse without a word, and another program may take the clipboard at once. What is there afterwards
    // tells.
    if (clipboard->text() != text) {
        WindowDialogs::shared().tell(Words::tr("Could not be copied: the clipboard is in use by another program."));
        return;
    }
    //: %1 what was copied
    Toasts::shared().show(
        Words::tr("Copied %1").arg(said.isEmpty() ? isolated(shortened(text.trimmed(), longestSaid)) : said));
}

} // namespace lodestar
