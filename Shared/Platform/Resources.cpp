// SPDX-License-Identifier: Apache-2.0
#include "Platform/Resources.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <utility>

namespace lodestar
{

namespace
{

class NoResources final : public Resources
{
public:
    std::optional<std::string> contents(const std::string& /*name*/, const std::string& /*extension*/) const override
    {
        return std::nullopt;
    }
};

class FolderResources final : public Resources
{
public:
    explicit FolderResources(std::string folder) : m_folder(std::move(folder)) {}

    std::optional<std::string> contents(const std::string& name, const std::string& extension) const override
    {
        const std::string file = extension.empty() ? name : name + "." + extension;
        // The top level only: a name is never a way out of the folder or into one below.
        if (name.empty() || file.find('/') != std::string::npos || file.find('\0') != std::string::npos) {
            return std::nullopt;
        }
        const std::filesystem::path path = m_folder / file;
        std::error_code failure;
        if (!std::filesystem::is_regular_file(path, failure)) {
            return std::nullopt;
        }
        std::ifstream stream(path, std::ios::binary);
        if (!stream) {
            return std::nullopt;
        }
        std::string bytes{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
        return stream.bad() ? std::nullopt : std::optional(std::move(bytes));
    }

private:
    std::filesystem::path m_folder;
};

/// Never destroyed: workers may still read resources while the process ends.
std::unique_ptr<Resources>& mainResources()
{
    static auto& resources = *new std::unique_ptr<Resources>(std::make_unique<NoResources>());
    return resources;
}

} // namespace

Resources& Resources::main()
{
    return *mainResources();
}

void Resources::install(std::unique_ptr<Resources> resources)
{
    mainResources() = resources ? std::move(resources) : std::make_unique<NoResources>();
}

std::unique_ptr<Resources> makeFolderResources(std::string folder)
{
    return std::make_unique<FolderResources>(std::move(folder));
}

} // namespace lodestar
