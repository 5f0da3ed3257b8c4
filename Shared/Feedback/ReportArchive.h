// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Feedback/ReportBundle.h"

#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

/// A ZIP archive of the files, in a folder of that name, uncompressed: pictures are compressed already and any desk can
/// look into it. Below 4 GB in all.
std::string zipArchive(std::string_view folder, const std::vector<ReportFile>& files);

} // namespace lodestar
