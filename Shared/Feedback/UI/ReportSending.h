// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Feedback/ReportBundle.h"
#include "Kit/Core/Menu.h"
#include "Kit/Core/ViewController.h"

#include <functional>
#include <memory>
#include <string>

namespace lodestar
{

/// Sends a report that is kept on this device, once a person has read its texts and agreed. The screen's alert shows
/// the state: under way, in percent, with a way to cancel; sent; or not sent, with a way to try again. `done` is called
/// when the person leaves the last alert, whether the report was sent or not. The screen is kept alive until then. Main
/// thread.
void sendKeptReport(std::shared_ptr<ViewController> screen, MenuOutlet& alert, ReportBundle bundle, std::string address,
                    std::function<void()> done);

} // namespace lodestar
