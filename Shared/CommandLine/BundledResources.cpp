// SPDX-License-Identifier: Apache-2.0
#include "CommandLine/BundledResources.h"

namespace lodestar
{

std::optional<std::string> BundledResources::contents(const std::string& name, const std::string& extension) const
{
    std::string wanted = name;
    wanted.append(".").append(extension);
    for (const BundledFile* file = bundledFiles; file->name != nullptr; ++file) {
        if (file->name == wanted) {
            return std::string(file->bytes, file->bytes + file->size);
        }
    }
    return std::nullopt;
}

} // namespace lodestar
