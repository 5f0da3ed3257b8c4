// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Resources.h"

namespace lodestar
{

/// The files compiled into the program, at the top of the resource tree. Readable from any thread.
class PackageResources final : public Resources
{
public:
    std::optional<std::string> contents(const std::string& name, const std::string& extension) const override;
};

} // namespace lodestar
