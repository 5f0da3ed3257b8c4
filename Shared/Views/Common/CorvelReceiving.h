// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/Model/Corvel.h"

#include <utility>

namespace lodestar
{

/// A screen that is opened for one console. Openers reach such screens through the storyboard, hence without knowing
/// their type, and hand the record over through this.
class CorvelReceiving
{
public:
    virtual ~CorvelReceiving() = default;
    const CorvelRef& corvel() const { return m_corvel; }
    /// Before the screen is put into a container. Main thread.
    virtual void setCorvel(CorvelRef corvel) { m_corvel = std::move(corvel); }

private:
    CorvelRef m_corvel;
};

} // namespace lodestar
