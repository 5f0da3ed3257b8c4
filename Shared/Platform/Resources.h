// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <optional>
#include <string>

namespace lodestar
{

/// The application package's read-only files. Implementations are thread-safe.
class Resources
{
public:
    virtual ~Resources() = default;
    /// The whole file `name.extension` at the package's top level; nothing when there is no such file.
    virtual std::optional<std::string> contents(const std::string& name, const std::string& extension) const = 0;

    /// The process's resources: none until `install`.
    static Resources& main();
    static void install(std::unique_ptr<Resources> resources);
};

/// Resources read from a folder, searched as given.
std::unique_ptr<Resources> makeFolderResources(std::string folder);

} // namespace lodestar
