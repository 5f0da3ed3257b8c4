// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Queues/DispatchQueue.h"

#include <memory>

namespace lodestar
{

/// Shares a value that takes a while to be freed, such as what holds many feeds: whoever lets go of it last, the main
/// thread as a rule, leaves that to the background. Any thread.
template <typename T>
std::shared_ptr<T> freedElsewhere(std::unique_ptr<T> value)
{
    return {value.release(),
            [](T* last) { DispatchQueue::globalBackground().async([owned = std::unique_ptr<T>(last)] {}); }};
}

} // namespace lodestar
