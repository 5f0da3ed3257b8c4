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
        return name.empty() ? std::nullopt : read(m_folder, extension.empty() ? name : name + "." + extension);
    }

    std::optional<std::vector<std::string>> filesInFolder(const std::string& folder) const override
    {
        if (!isPlain(folder)) {
            return std::nullopt;
        }
        std::error_code failure;
        std::filesystem::directory_iterator entry(m_folder / folder, failure);
        std::vector<std::string> names;
        for (; !failure && entry != std::filesystem::directory_iterator(); entry.increment(failure)) {
            std::error_code unreadable;
            if (entry->is_regular_file(unreadable)) {
                names.push_back(entry->path().filename().string());
            }
        }
        return failure ? std::nullopt : std::optional(std::move(names));
    }

    std::optional<std::string> contentsInFolder(const std::string& folder, const std::string& file) const override
    {
        return isPlain(folder) ? read(m_folder / folder, file) : std::nullopt;
    }

private:
    /// A resource's name must not lead out of the folder or into a subfolder.
    static bool isPlain(const std::string& name)
    {
        return !name.empty() && name != "." && name != ".." && name.find('/') == std::string::npos &&
               name.find('\0') == std::string::npos;
    }

    static std::optional<std::string> read(const std::filesystem::path& folder, const std::string& file)
    {
        if (!isPlain(file)) {
            return std::nullopt;
        }
        const std::filesystem::path path = folder / file;
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

    std::filesystem::path m_folder;
};

/// Never destroyed: workers may still read resources while the process ends.
std::unique_ptr<Resources>& mainResources()
{
    static auto& resources = *new std::unique_ptr<Resources>(std::make_unique<NoResources>());
    return resources;
}

} // namespace

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
    mainResources() = resources ? std::move(resources) : std::make_unique<NoResources>();
}

std::unique_ptr<Resources> makeFolderResources(std::string folder)
{
    return std::make_unique<FolderResources>(std::move(folder));
}

} // namespace lodestar
