// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/Model/Corvel.h"
#include "Kit/Core/ViewController.h"
#include "XML/XMLElement.h"

#include <string_view>

namespace lodestar
{

/// Opens the detail screen of an object of the type, on the screen's stack; for a group, its console's list of groups.
void openObject(const ViewController& from, const CorvelRef& corvel, std::string_view type, const XMLElement& object);

} // namespace lodestar
