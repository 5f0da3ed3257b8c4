// SPDX-License-Identifier: Apache-2.0
#include "Views/Corvels/CorvelMenu.h"

#include "Fleet/Attention.h"
#include "Fleet/Readings.h"
#include "Kit/Core/Clipboard.h"
#include "Views/Common/AgeClock.h"
#include "Views/Common/CellText.h"
#include "Views/Common/CellViews.h"
#include "Views/Common/FeedName.h"
#include "Views/Common/ReadingMark.h"
#include "Views/Common/Scenes.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace lodestar
{
namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(lodestar::CorvelMenu)
};

enum Choice { ConnectionChoice, AttentionChoice, CopyAddressChoice, CancelChoice };

AttentionPresenter& attentionPresenter()
{
    static AttentionPresenter presenter;
    return presenter;
}

/// What is wrong with the connection; nothing when all is well.
QString connectionWord(const Corvel& corvel)
{
    const ReadingMark mark = markOfConsole(*Readings::shared().of(corvel), AgeClock::now());
    switch (mark.state) {
    case Role::State::Offline:
        return Words::tr("Offline");
    case Role::State::Incomplete:
        return mark.text;
    default:
        return {};
    }
}

/// How much of the console needs attention, as the tab's badge counts; nothing when nothing does.
QString attentionCount(const Corvel& corvel)
{
    const auto needs = [&corvel](const Finding& finding) {
        return finding.corvel.get() == &corvel && bandOf(finding.rank) != FindingBand::OpenEvents;
    };
    const auto count = std::ranges::count_if(Attention::shared().picture()->findings.list, needs);
    return count == 0 ? QString() : QString::number(count);
}

} // namespace

void setAttentionPresenter(AttentionPresenter presenter)
{
    attentionPresenter() = std::move(presenter);
}

void presentCorvelMenu(MenuOutlet& menu, const std::shared_ptr<ViewController>& screen, const CorvelRef& corvel)
{
    // The record and not its row: rows may move while the menu is up.
    const auto chosen = [over = std::weak_ptr(screen), corvel](int choice) {
        const auto shown = over.lock();
        if (!shown) {
            return;
        }
        switch (choice) {
        case ConnectionChoice:
            openScene(*shown, Scenes::connectionView, corvel);
            break;
        case AttentionChoice:
            if (attentionPresenter()) {
                attentionPresenter()(*shown, corvel);
            }
            break;
        case CopyAddressChoice:
            Clipboard::copy(textOf(corvel->address()));
            break;
        default:
            break;
        }
    };
    menu.present(CellLabel{.text = textOf(corvel->name())}.line(), QString(),
                 {{.title = Words::tr("Connection"),
                   .imageName = QStringLiteral("connection"),
                   .detail = connectionWord(*corvel)},
                  {.title = Words::tr("Attention"),
                   .imageName = QStringLiteral("tab_attention"),
                   .detail = attentionCount(*corvel)},
                  {.title = Words::tr("Copy Address"), .imageName = QStringLiteral("copy")},
                  {.title = Words::tr("Cancel")}},
                 CancelChoice, chosen);
}

} // namespace lodestar
