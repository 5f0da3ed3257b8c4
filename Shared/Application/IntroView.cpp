// SPDX-License-Identifier: Apache-2.0
#include "Application/IntroView.h"

#include "Kit/Core/UIColor+Tessel.h"
#include "Kit/Core/ViewController.h"

#include <QCoreApplication>
#include <QFile>

#include <utility>
#include <vector>

namespace lodestar
{
namespace
{

constexpr double animationDuration = 0.3;

QString translated(const char* text)
{
    return QCoreApplication::translate("IntroView", text);
}

/// A picture that is not there leaves its page without one.
QUrl pictureNamed(const QString& name)
{
    const QString file = QStringLiteral(":/") + name + QStringLiteral(".png");
    return QFile::exists(file) ? QUrl(QStringLiteral("qrc") + file) : QUrl();
}

std::vector<IntroPage> makePages()
{
    // The words of the pictures, which are made from these.
    return {
        {pictureNamed(QStringLiteral("ts1")), translated("Every console, one list"),
         translated("Health, attention LEDs and events of your whole fleet, refreshed with one pull.")},
        {pictureNamed(QStringLiteral("ts2")), translated("The sum of it all"),
         translated("The dashboard adds up managed systems and partitions by their state.")},
        {pictureNamed(QStringLiteral("ts3")), translated("Every managed system"),
         translated("Find a system by name. Badges tell errors and lit attention LEDs.")},
        {pictureNamed(QStringLiteral("ts4")), translated("Down to the partition"),
         translated("Partitions and virtual I/O servers stand under the system that runs them.")},
        {pictureNamed(QStringLiteral("ts5")), translated("Every fact at hand"),
         translated("Models, serial numbers, versions and reference codes are one tap away.")},
        {pictureNamed(QStringLiteral("ts6")), translated("Events as they stand"),
         translated("See what the consoles report. Lodestar reads only and changes nothing.")},
    };
}

} // namespace

void IntroView::showIntroViewInView(ViewController& view, std::weak_ptr<IntroViewDelegate> delegate)
{
    const auto intro = std::make_shared<PagedIntro>(makePages());
    intro->setDelegate(std::move(delegate));
    intro->pageControl()->setPageIndicatorTintColor(UIColor::lightGrayColor());
    intro->pageControl()->setCurrentPageIndicatorTintColor(UIColor::selectedBlue());
    intro->skipButton()->setTitleColor(UIColor::selectedBlue());
    intro->showInView(view, animationDuration);
}

} // namespace lodestar
