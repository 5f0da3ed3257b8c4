// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Queues/MainQueue.h"

#include <QPointer>

#include <type_traits>
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

/// Sets a member on the main thread as `onMain` runs a change. The signal is emitted where that changes the member.
template <typename Object, typename Value>
void assignOnMain(Object* object, Value Object::*member, std::type_identity_t<Value> value, void (Object::*changed)())
{
    onMain(object, [member, value = std::move(value), changed](Object& target) mutable {
        if (target.*member != value) {
            target.*member = std::move(value);
            Q_EMIT(target.*changed)();
        }
    });
}

} // namespace lodestar
