// SPDX-License-Identifier: Apache-2.0
#include "Fleet/FleetSearchKeeper.h"

#include "Fleet/Attention.h"
#include "Platform/Queues/DispatchQueue.h"
#include "Platform/Queues/FreedElsewhere.h"
#include "Platform/Queues/MainQueue.h"

#include <new>
#include <utility>

namespace lodestar
{
namespace
{

std::shared_ptr<const FleetSearch> make(const std::vector<ConsoleSnapshot>& consoles, const FleetSearch* before)
{
    try {
        return freedElsewhere(std::make_unique<const FleetSearch>(consoles, before));
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

} // namespace

std::shared_ptr<FleetSearchKeeper> FleetSearchKeeper::shared()
{
    static std::weak_ptr<FleetSearchKeeper> only;
    std::shared_ptr<FleetSearchKeeper> keeper = only.lock();
    if (keeper == nullptr) {
        keeper = std::make_shared<FleetSearchKeeper>(Only());
        only = keeper;
        keeper->m_observation = NotificationCenter::defaultCenter().addObserver(
            "AttentionDidChange", [raw = keeper.get()] { raw->update(); });
        keeper->update();
    }
    return keeper;
}

void FleetSearchKeeper::update()
{
    if (std::exchange(m_isMaking, true)) {
        m_isAskedAgain = true;
        return;
    }
    DispatchQueue::globalBackground().async(
        [weak = weak_from_this(), before = m_search, picture = Attention::shared().picture()] {
            auto search = make(picture->consoles, before.get());
            MainQueue::shared().async([weak, search = std::move(search)]() mutable {
                if (const auto keeper = weak.lock()) {
                    keeper->show(std::move(search));
                }
            });
        });
}

void FleetSearchKeeper::show(std::shared_ptr<const FleetSearch> search)
{
    m_isMaking = false;
    m_search = std::move(search);
    NotificationCenter::defaultCenter().postNotification("FleetSearchDidChange");
    if (std::exchange(m_isAskedAgain, false)) {
        update();
    }
}

} // namespace lodestar
