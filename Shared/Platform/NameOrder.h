// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>

namespace lodestar
{

/// In which order a person looks for names. This class goes by their bytes. Implementations are thread-safe.
class NameOrder
{
public:
    virtual ~NameOrder() = default;
    /// Below 0 when the first name stands before the second, 0 when neither does.
    virtual int compare(const std::string& first, const std::string& second) const;

    /// The process's order: that of bytes until `install` puts the language's in its place. Install before names are
    /// put in order.
    static const NameOrder& standard();
    static void install(std::unique_ptr<NameOrder> order);
};

} // namespace lodestar
