// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Feedback/ReportBundle.h"

#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

/// A ZIP archive of the files, in a folder with that name. Nothing is compressed: pictures are compressed already, and
/// every computer can open such an archive. The total must stay below 4 GB.
std::string zipArchive(std::string_view folder, const std::vector<ReportFile>& files);

} // namespace lodestar
