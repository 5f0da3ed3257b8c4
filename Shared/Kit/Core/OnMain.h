// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Queues/MainQueue.h"

#include <QPointer>

#include <utility>

namespace lodestar
{

/// Runs `change(object)` on the main thread: at once when called there, otherwise later. Does nothing if the object is
/// gone by then. The caller keeps the object alive during the call itself.
template <typename Object, typename Change>
void onMain(Object* object, Change change)
{
    if (MainQueue::shared().isCurrent()) {
        change(*object);
        return;
    }
    MainQueue::shared().async([guard = QPointer<Object>(object), change = std::move(change)]() mutable {
        if (guard) {
            change(*guard);
        }
    });
}

} // namespace lodestar
