// SPDX-License-Identifier: Apache-2.0
#include "Application/IntroView.h"

#include "Kit/Core/Languages.h"
#include "Kit/Core/UIColor+Tessel.h"
#include "Kit/Core/ViewController.h"

#include <QFile>

#include <utility>

namespace lodestar
{
namespace
{

constexpr double animationDuration = 0.3;

/// The picture that shows the language's own words, or else the English one. Empty when there is no such picture.
QUrl pictureNamed(const QString& name)
{
    for (const QString& folder : {Languages::current() + QLatin1Char('/'), QString()}) {
        const QString file = QStringLiteral(":/%1%2.png").arg(folder, name);
        if (QFile::exists(file)) {
            return QStringLiteral("qrc") + file;
        }
    }
    return {};
}

} // namespace

std::vector<IntroPage> IntroView::pages()
{
    // The pictures are drawn with these words. After a change make them anew: lodestar-screenshots --tour
    // Resources/tour.
    return {
        {pictureNamed(QStringLiteral("ts1")), tr("Every console, one list"),
         tr("Health, attention LEDs and events of your whole fleet, refreshed with one pull.")},
        {pictureNamed(QStringLiteral("ts2")), tr("The sum of it all"),
         tr("The dashboard adds up managed systems and partitions by their state.")},
        {pictureNamed(QStringLiteral("ts3")), tr("Every managed system"),
         tr("Find a system by name. Badges tell errors and lit attention LEDs.")},
        {pictureNamed(QStringLiteral("ts4")), tr("Down to the partition"),
         tr("Partitions and virtual I/O servers stand under the system that runs them.")},
        {pictureNamed(QStringLiteral("ts5")), tr("Load over time"),
         tr("Processors and memory of a system, total, allocated and used, as lines.")},
        {pictureNamed(QStringLiteral("ts6")), tr("Behind a passcode"),
         tr("Lock Lodestar if you like. It reads only and changes nothing on a console.")},
    };
}

void IntroView::showIntroViewInView(ViewController& view, std::weak_ptr<PagedIntroDelegate> delegate)
{
    const auto intro = std::make_shared<PagedIntro>(pages());
    intro->setDelegate(std::move(delegate));
    intro->pageControl()->pageIndicatorTintColor = UIColor::lightGrayColor();
    intro->pageControl()->currentPageIndicatorTintColor = UIColor::selectedBlue();
    intro->skipButton()->titleColor = UIColor::selectedBlue();
    intro->showInView(view, animationDuration);
}

} // namespace lodestar
