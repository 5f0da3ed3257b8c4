// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace lodestar
{

/// The application package's read-only files. This class has none. Implementations are thread-safe.
class Resources
{
public:
    virtual ~Resources() = default;
    /// The whole file `name.extension` at the package's top level; none when there is no such file.
    virtual std::optional<std::string> contents(const std::string& name, const std::string& extension) const;
    /// The names of the files in a folder at the package's top level, in no particular order; none when there is no
    /// such folder or it cannot be read.
    virtual std::optional<std::vector<std::string>> filesInFolder(const std::string& folder) const;
    /// The whole file with that name in such a folder; none when it cannot be read.
    virtual std::optional<std::string> contentsInFolder(const std::string& folder, const std::string& file) const;

    /// The process's resources; there are none until `install`.
    static Resources& main();
    static void install(std::unique_ptr<Resources> resources);
};

} // namespace lodestar
