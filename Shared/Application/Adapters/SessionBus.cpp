// SPDX-License-Identifier: Apache-2.0
#include "Application/Adapters/SessionBus.h"

#include <QFileInfo>
#include <QtGlobal>

namespace lodestar
{
namespace
{

constexpr const char* addressVariable = "DBUS_SESSION_BUS_ADDRESS";
/// No library of the bus can connect to this address.
constexpr const char* nowhere = "disabled:";

} // namespace

bool hasSessionBus()
{
    if (const QByteArray address = qgetenv(addressVariable); !address.isEmpty()) {
        return address != nowhere;
    }
    const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return !folder.isEmpty() && QFileInfo::exists(folder + QStringLiteral("/bus"));
}

void leaveAbsentSessionBus()
{
    if (!hasSessionBus()) {
        qputenv(addressVariable, nowhere);
    }
}

} // namespace lodestar
