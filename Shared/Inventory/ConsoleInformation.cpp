// SPDX-License-Identifier: Apache-2.0
#include "Inventory/ConsoleInformation.h"

#include "Application/Model/Corvel.h"

#include <fmt/format.h>

namespace lodestar
{

ConsoleInformation ConsoleInformation::of(const Feed& feed)
{
    return recordOfEntry<ConsoleInformation>(feed.root().child("entry"));
}

std::string ConsoleInformation::version() const
{
    const auto part = [this](std::string_view name) { return shownText(text({"VersionInfo", name})); };
    return fmt::format("V{}R{}.{}.{}.{}", part("Version"), part("Release"), part("Maintenance"), part("Minor"),
                       part("ServicePackName"));
}

Health healthOf(const Corvel& corvel)
{
    if (!corvel.isOnline) {
        return Health::Offline;
    }
    return corvel.numMSErrors != 0 ? Health::Error : Health::Good;
}

} // namespace lodestar
