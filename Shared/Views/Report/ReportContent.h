// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/Model/Corvel.h"
#include "Fleet/Reading.h"
#include "Fleet/ServiceReport.h"
#include "XML/XMLElement.h"

#include <QString>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

class ManagedSystem;
class ServiceableEvent;

/// Where an object on a screen comes from: found while its feed is there, since a refresh may replace the feed later.
struct ReportSource {
    CorvelRef corvel;               ///< none when no console's feed holds the object (any more)
    std::optional<WallTime> readAt; ///< when that feed was read
};
/// Main thread.
ReportSource reportSource(const XMLElement& object, std::string_view type);

/// A report in both forms that the reader can choose.
struct ReportContent {
    ServiceReport report; ///< with all addresses
    ServiceReport addressless;
    QString fileName; ///< without its ending
};
ReportContent reportOf(const ServiceableEvent& event, const ReportSource& source);
ReportContent reportOf(const ManagedSystem& system, const ReportSource& source);

/// A time in the device's zone and in UTC: "12 Mar 2026, 07:41 UTC+1 (06:41 UTC)"; once where they are the same.
QString reportTime(WallTime time);

} // namespace lodestar
