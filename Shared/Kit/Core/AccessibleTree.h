// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace lodestar
{

/// Has windows, and what is an AccessibleItem, describe themselves to assistive programs: the toolkit's own
/// descriptions of them know no modality, no actions beyond a button's, and read lists in the order in which rows were
/// made. Once a process is enough. Main thread.
void installAccessibleTree();

} // namespace lodestar
