// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Inventory/Health.h"
#include "Inventory/Record.h"

#include <optional>
#include <string>
#include <string_view>

namespace lodestar
{

/// What a console reports about itself.
class ConsoleInformation : public Record
{
public:
    static constexpr std::string_view type = ObjectType::ManagementConsole;
    using Record::Record;
    /// The console that the feed's first entry describes; none when the feed is "NA" or describes none.
    static ConsoleInformation of(const Feed& feed);

    std::optional<std::string> name() const { return text("ManagementConsoleName"); }
    MachineIdentity identity() const { return MachineIdentity(element().child("MachineTypeModelAndSerialNumber")); }
    std::optional<std::string> buildLevel() const { return text({"VersionInfo", "BuildLevel"}); }
    /// The version in the form "V…R…", made of five parts; a missing part is "(null)".
    std::string version() const;
};

/// The health of a registered console after its last fetch: offline when its logon failed, whatever is known of its
/// systems; an error when one of its systems has an error; good otherwise. Any thread.
Health healthOf(const Corvel& corvel);

} // namespace lodestar
