// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/Model/Corvel.h"

#include <utility>

namespace lodestar
{

/// A screen that is opened for one console. Openers make such screens by the storyboard and do not know their type;
/// they pass the record on through this interface.
class CorvelReceiving
{
public:
    const CorvelRef& corvel() const { return m_corvel; }
    /// Before the screen is put into a container.
    void setCorvel(CorvelRef corvel) { m_corvel = std::move(corvel); }

private:
    CorvelRef m_corvel;
};

} // namespace lodestar
