// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/Model/Corvel.h"
#include "Kit/Core/Menu.h"
#include "Kit/Core/ViewController.h"

#include <functional>
#include <memory>

namespace lodestar
{

/// Shows what needs attention at one console alone, from a screen within the tabs.
using AttentionPresenter = std::function<void(const ViewController& from, const CorvelRef& corvel)>;
/// Sets what the menu's Attention does; without it, nothing. Main thread, before the first menu.
void setAttentionPresenter(AttentionPresenter presenter);

/// Shows the menu of one console of a list: Connection, Attention, Copy Address. The screen opens what is chosen.
void presentCorvelMenu(MenuOutlet& menu, const std::shared_ptr<ViewController>& screen, const CorvelRef& corvel);

} // namespace lodestar
