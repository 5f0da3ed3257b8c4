// SPDX-License-Identifier: Apache-2.0
#include "Platform/Resources.h"

#include <utility>

namespace lodestar
{

namespace
{

/// Never destroyed: workers may still read resources while the process ends.
std::unique_ptr<Resources>& mainResources()
{
    static auto& resources = *new std::unique_ptr<Resources>(std::make_unique<Resources>());
    return resources;
}

} // namespace

std::optional<std::string> Resources::contents(const std::string& /*name*/, const std::string& /*extension*/) const
{
    return std::nullopt;
}

std::optional<std::vector<std::string>> Resources::filesInFolder(const std::string& /*folder*/) const
{
    return std::nullopt;
}

std::optional<std::string> Resources::contentsInFolder(const std::string& /*folder*/, const std::string& /*file*/) const
{
    return std::nullopt;
}

Resources& Resources::main()
{
    return *mainResources();
}

void Resources::install(std::unique_ptr<Resources> resources)
{
    mainResources() = resources ? std::move(resources) : std::make_unique<Resources>();
}

} // namespace lodestar
