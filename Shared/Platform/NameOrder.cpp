// SPDX-License-Identifier: Apache-2.0
#include "Platform/NameOrder.h"

#include <utility>

namespace lodestar
{
namespace
{

/// Never destroyed: workers may still put names in order while the process ends.
std::unique_ptr<NameOrder>& standardOrder()
{
    static auto& order = *new std::unique_ptr<NameOrder>(std::make_unique<NameOrder>());
    return order;
}

} // namespace

int NameOrder::compare(const std::string& first, const std::string& second) const
{
    return first.compare(second);
}

const NameOrder& NameOrder::standard()
{
    return *standardOrder();
}

void NameOrder::install(std::unique_ptr<NameOrder> order)
{
    standardOrder() = order ? std::move(order) : std::make_unique<NameOrder>();
}

} // namespace lodestar
