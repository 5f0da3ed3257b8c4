// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace lodestar
{

/// Names this run of the program in the log, in reports and to the feedback service: letters and digits. Any thread.
const std::string& feedbackSessionIdentifier();

} // namespace lodestar
