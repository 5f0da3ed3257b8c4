// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/NameOrder.h"

namespace lodestar
{

/// The order of names in the locale that was the default one when a thread first asked: it must not change later.
class LocaleNameOrder final : public NameOrder
{
public:
    int compare(const std::string& first, const std::string& second) const override;
};

} // namespace lodestar
