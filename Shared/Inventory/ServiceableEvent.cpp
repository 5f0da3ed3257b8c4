// SPDX-License-Identifier: Apache-2.0
#include "Inventory/ServiceableEvent.h"

namespace lodestar
{

std::vector<FieldReplaceableUnit> ServiceableEvent::units() const
{
    const auto elements = element().child("fieldReplaceableUnits").children("FieldReplaceableUnit");
    return {elements.begin(), elements.end()};
}

std::string ServiceableEvent::title() const
{
    return approvalState().value_or("") + " (#" + problemNumber().value_or("") + ")";
}

} // namespace lodestar
