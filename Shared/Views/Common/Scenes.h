// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/Model/Corvel.h"
#include "Kit/Core/Storyboard.h"
#include "Platform/Result.h"
#include "XML/XMLElement.h"

#include <QByteArray>
#include <QString>

#include <memory>
#include <optional>
#include <string>

namespace lodestar
{

enum class MetricsSegment : int;
struct PerformanceMetrics;

/// What scenes are opened with. No member has a default: an opener that leaves one out is not compiled.

struct EditorInput {
    CorvelRef corvel;                           ///< none to add one
    std::shared_ptr<ViewController> parentList; ///< kept for as long as the editor is there; may be none
};

struct PartitionsInput {
    CorvelRef corvel;
    std::optional<std::string> partitionName; ///< despite its name, that of the one system to show; none for all
};

struct SystemMenuInput {
    CorvelRef corvel;
    XMLElement system;
};

struct PerformanceInput {
    CorvelRef corvel;
    std::optional<std::string> sysName;  ///< none when the opener has none to give
    std::optional<std::string> systemID; ///< what the system's metrics go by
};

struct LargeChartInput {
    std::optional<std::string> sysName; ///< none when the opener has none to give
    std::shared_ptr<const PerformanceMetrics> metrics;
    MetricsSegment segment; ///< what is charted first
};

/// The text that the screen begins with; empty for its recent texts.
struct FindInput {
    QString text;
};

/// A file that may be a fleet sheet, or why it could not be read.
struct FleetFileInput {
    QString name;
    std::shared_ptr<const Result<QByteArray>> bytes;
};

struct FleetSheet;
class FleetImport;

/// The scenes that screens open, each with what it is opened with.
namespace Scenes
{

inline constexpr Scene<> corvelListView{"corvelListView"};
inline constexpr Scene<EditorInput> deltaCorvel{"deltaCorvel"};
inline constexpr Scene<> dashboardView{"dashboardView"};
inline constexpr Scene<CorvelRef> corvelTasksViewController{"corvelTasksViewController"};
inline constexpr Scene<CorvelRef> managedSystemsView{"managedSystemsView"};
inline constexpr Scene<XMLElement> managedSystemInfo{"managedSystemInfo"};
inline constexpr Scene<SystemMenuInput> managedSystemMenu{"managedSystemMenu"};
inline constexpr Scene<PerformanceInput> pcmDataView{"pcmDataView"};
inline constexpr Scene<LargeChartInput> largeChartView{"largeChartView"};
inline constexpr Scene<CorvelRef> managementConsoleView{"managementConsoleView"};
inline constexpr Scene<PartitionsInput> logicalPartitionsView{"logicalPartitionsView"};
inline constexpr Scene<XMLElement> logicalPartitionsDetail{"logicalPartitionsDetail"};
inline constexpr Scene<CorvelRef> viosView{"viosView"};
inline constexpr Scene<XMLElement> viosDetail{"viosDetail"};
inline constexpr Scene<CorvelRef> resourceGroupsView{"resourceGroupsView"};
inline constexpr Scene<CorvelRef> serviceableEventsView{"serviceableEventsView"};
inline constexpr Scene<XMLElement> serviceableEventsDetail{"serviceableEventsDetail"};
inline constexpr Scene<> versionViewController{"versionViewController"};
inline constexpr Scene<> openSourceViewController{"openSourceViewController"};
inline constexpr Scene<> OrnisLicenseViewController{"OrnisLicenseViewController"};
inline constexpr Scene<> settingsViewController{"settingsViewController"};
inline constexpr Scene<> loginViewController{"loginViewController"};
inline constexpr Scene<> passwordCreation{"passwordCreation"};
inline constexpr Scene<> mainView{"mainView"};
inline constexpr Scene<> attentionView{"attentionView"};
inline constexpr Scene<CorvelRef> connectionView{"connectionView"};
inline constexpr Scene<> watchView{"watchView"};
inline constexpr Scene<> watchConsolesView{"watchConsolesView"};
inline constexpr Scene<FindInput> findView{"findView"};
inline constexpr Scene<> fleetSheetView{"fleetSheetView"};
inline constexpr Scene<FleetFileInput> fleetChooseView{"fleetChooseView"};
inline constexpr Scene<std::shared_ptr<const FleetSheet>> fleetUnusableView{"fleetUnusableView"};
inline constexpr Scene<std::shared_ptr<FleetImport>> fleetVerifyView{"fleetVerifyView"};

} // namespace Scenes

} // namespace lodestar
