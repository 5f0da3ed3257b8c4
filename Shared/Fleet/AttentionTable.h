// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Csv.h"
#include "Fleet/Findings.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace lodestar
{

/// The words under which scripts know bands and findings: "not_answering", "system_error_lit". They never change.
std::string_view wordOf(FindingBand band);
std::string_view wordOf(FindingRank rank);

/// The findings of these indexes, in this order, one a row. Titles follow the rule of `tableOfObjects`; "rank" is 1 for
/// the worst, and "since" is exact or "at least since". Any thread.
Table tableOfFindings(const Findings& findings, const std::vector<std::uint32_t>& shown);
/// All findings.
Table tableOfFindings(const Findings& findings);

} // namespace lodestar
