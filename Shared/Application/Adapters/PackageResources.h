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
    std::optional<std::vector<std::string>> filesInFolder(const std::string& folder) const override;
    std::optional<std::string> contentsInFolder(const std::string& folder, const std::string& file) const override;
};

} // namespace lodestar
