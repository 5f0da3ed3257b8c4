// SPDX-License-Identifier: Apache-2.0
#include "Benchmarks/List/FleetOnScreen.h"

#include "Benchmarks/Program.h"
#include "Controllers/REST/RESTHandler.h"
#include "Fleet/Registry.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

#include <algorithm>

namespace lodestar::bench
{
namespace
{

constexpr int refreshLimit = 600'000; // milliseconds; a refresh that takes longer hangs
constexpr int tick = 1;               // milliseconds

bool isSettled()
{
    const auto& consoles = RESTHandler::sharedInstance().corvelList();
    return std::all_of(consoles.begin(), consoles.end(),
                       [](const CorvelRef& corvel) { return corvel->completedFetch.load(); });
}

} // namespace

FleetOnScreen::FleetOnScreen(const simulator::Settings& settings) : m_simulator(settings)
{
    m_stage.show({390, 844}, {});
    for (int i = 0; i < settings.consoles; ++i) {
        const CorvelRef corvel = insertNewCorvel();
        corvel->setName("Console " + std::to_string(i));
        corvel->setAddress(m_simulator.address(i));
        corvel->setUsername(m_simulator.user());
        corvel->setPassword(m_simulator.password());
        RESTHandler::sharedInstance().addCorvel(corvel);
    }
    m_stage.list().tableView()->setHidden(false);
    m_stage.list().tableView()->reloadData();
}

Refresh FleetOnScreen::refresh()
{
    Refresh result;
    QEventLoop loop;
    QElapsedTimer sinceStart;
    QElapsedTimer sinceTick;
    QTimer ticks;
    ticks.setTimerType(Qt::PreciseTimer);
    QObject::connect(&ticks, &QTimer::timeout, &loop, [&] {
        const auto gap = static_cast<double>(sinceTick.nsecsElapsed()) / 1e6 - tick;
        result.longestGap = std::max(result.longestGap, gap);
        sinceTick.restart();
        if (isSettled() || sinceStart.elapsed() > refreshLimit) {
            loop.quit();
        }
    });
    sinceStart.start();
    sinceTick.start();
    ticks.start(tick);
    m_stage.list().refresh();
    loop.exec();
    result.nanoseconds = static_cast<double>(sinceStart.nsecsElapsed());
    require(isSettled(), "a console has not settled");
    const auto& consoles = RESTHandler::sharedInstance().corvelList();
    result.online = static_cast<int>(std::count_if(consoles.begin(), consoles.end(),
                                                   [](const CorvelRef& corvel) { return corvel->isOnline.load(); }));
    return result;
}

} // namespace lodestar::bench
