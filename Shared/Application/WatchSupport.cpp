// SPDX-License-Identifier: Apache-2.0
#include "Application/WatchSupport.h"

#include "Application/Adapters/DBusMessageService.h"
#include "Application/Adapters/DBusNetworkState.h"
#include "Application/FeedbackWindow.h"
#include "Application/WatchMessages.h"
#include "Fleet/History.h"
#include "Fleet/Watch.h"
#include "Views/Common/AgeClock.h"

#include <memory>

namespace lodestar
{

WatchSupport::WatchSupport(FeedbackWindow& window) : m_opener(window)
{
    auto messages = std::make_unique<DBusMessageService>();
    auto network = std::make_unique<DBusNetworkState>();
    // The first frame must not wait for a bus.
    connect(
        &window, &QQuickWindow::frameSwapped, this,
        [messages = messages.get(), network = network.get()] {
            messages->follow();
            network->follow();
        },
        static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
    MessageService::install(std::move(messages));
    NetworkState::install(std::move(network));

    Watch& watch = Watch::shared();
    watch.setWords([](const WatchNews& news, bool counts) { return WatchMessages::of(news, counts, AgeClock::now()); },
                   &WatchMessages::test);
    watch.setOpen([this] { m_opener.open(); });
    History::shared().whenOpen([] { Watch::shared().start(); });
}

WatchSupport::~WatchSupport()
{
    Watch::shared().stop();
    Watch::shared().setOpen({});
    MessageService::install(nullptr);
    NetworkState::install(nullptr);
}

} // namespace lodestar
