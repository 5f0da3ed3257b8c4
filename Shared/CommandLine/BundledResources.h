// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Resources.h"

namespace lodestar
{

/// The demonstration console's files, compiled into the program. Any thread.
class BundledResources final : public Resources
{
public:
    std::optional<std::string> contents(const std::string& name, const std::string& extension) const override;
};

/// A file that the build put into the program.
struct BundledFile {
    const char* name;
    const unsigned char* bytes;
    std::size_t size;
};
/// Ends with a file without a name. Made by the build.
extern const BundledFile bundledFiles[];

} // namespace lodestar
