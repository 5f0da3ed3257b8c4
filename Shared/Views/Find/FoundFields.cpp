// SPDX-License-Identifier: Apache-2.0
#include "Views/Find/FoundFields.h"

#include "Inventory/ConsoleInformation.h"
#include "Inventory/ManagedSystem.h"
#include "Inventory/Partition.h"
#include "Inventory/ResourceGroup.h"
#include "Inventory/ServiceableEvent.h"
#include "Kit/Core/Sentence.h"
#include "Views/Common/CellText.h"
#include "Views/Common/FeedName.h"
#include "Views/Common/PartitionCell.h"
#include "Views/ManagedSystems/MSListCell.h"
#include "Views/ResourceGroups/RGListCell.h"

#include <QCoreApplication>
#include <QLocale>

namespace lodestar
{
namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(lodestar::FoundFields)
};

constexpr int tagSize = 24; // points

/// Of a text without end, so much is looked through for what can be marked.
constexpr qsizetype longestField = 10'000;

QString part(const std::optional<std::string>& text)
{
    return isolated(shortened(textOf(text), longestField));
}

/// "4210-M16, serial 06A17C2".
QString machine(const MachineIdentity& identity)
{
    const QString serial = part(identity.serialNumber());
    return Sentence::joined(
        {part(typeAndModelOf(identity)), serial.isEmpty() ? QString() : Words::tr("serial %1").arg(serial)});
}

FoundFields fields(const ManagedSystem& system)
{
    const MSListCell cell(system, {});
    return {.name = textOf(system.name()),
            .usual = machine(system.identity()),
            .others = {part(system.primaryIPAddress()), part(system.referenceCode())},
            .state = cell.statusLabel,
            .picture = cell.statusImage.imageName};
}

FoundFields fields(const Partition& partition, const SearchedConsole& console)
{
    return {.name = textOf(partition.name()),
            .usual = Sentence::joined({part(console.systemOf(partition)), part(partition.referenceCode())}),
            .state = PartitionCell(partition, {}).stateLabel};
}

FoundFields fields(const ResourceGroup& group, std::size_t inError)
{
    const auto members = static_cast<int>(group.members().size());
    RGListCell cell;
    cell.setGroupColor(group.color().value_or(""));
    const QString resources = Words::tr("%Ln resources", nullptr, members);
    //: How many of a group's resources are in error, as in "16 resources, 1 in error"
    const QString errors = inError == 0 ? QString() : Words::tr("%Ln in error", nullptr, static_cast<int>(inError));
    return {.name = textOf(group.name()),
            .usual = Sentence::joined({resources, errors}),
            .picture = cell.groupTag.imageName,
            .pictureSize = tagSize};
}

FoundFields fields(const ServiceableEvent& event)
{
    QStringList others{part(event.referenceCode()), part(event.referenceCodeExtension()),
                       part(event.systemReferenceCode()), part(event.failingSystem().hostName()),
                       machine(event.failingSystem().identity())};
    for (const FieldReplaceableUnit& unit : event.units()) {
        others << Sentence::joined({part(unit.partNumber()), part(unit.locationCode())});
    }
    others << part(event.problemState());
    const QString text = oneLine(shortened(textOf(event.shortDescription()), longestField));
    return {.name = textOf(event.title()), .usual = text.isEmpty() ? others.front() : text, .others = others};
}

CellLabel stateOf(const ConsoleSnapshot& console)
{
    if (wasRead(console)) {
        return console.corvel->numMSErrors != 0 ? CellLabel{Words::tr("Error"), Role::State::Error}
                                                : CellLabel{Words::tr("Good"), Role::State::Good};
    }
    const bool isOffline = console.reading != nullptr && console.reading->outcome == Reading::Outcome::Offline;
    return isOffline ? CellLabel{Words::tr("Offline"), Role::State::Offline} : CellLabel();
}

FoundFields fields(const ConsoleSnapshot& console, const ConsoleInformation& information)
{
    FoundFields fields{.name = QString::fromStdString(console.name),
                       .usual = part(console.address),
                       .others = {part(information.name()), machine(information.identity())},
                       .state = stateOf(console)};
    if (wasRead(console)) {
        fields.others << part(console.reading->address);
    }
    return fields;
}

} // namespace

FoundFields fieldsOf(const FleetSearch& search, const FoundObject& found)
{
    const ConsoleSnapshot& console = search.consoleOf(found);
    const SearchedConsole& searched = search.searchedOf(found);
    const XMLElement element = searched.elementOf(found.object);
    const std::string_view type = searchedKinds.at(searched.kindOf(found.object));
    if (type == ManagedSystem::type) {
        return fields(ManagedSystem(element));
    }
    if (type == ResourceGroup::type) {
        return fields(ResourceGroup(element), searched.membersInError(element));
    }
    if (type == ServiceableEvent::type) {
        return fields(ServiceableEvent(element));
    }
    return type == ConsoleInformation::type ? fields(console, ConsoleInformation(element))
                                            : fields(Partition(element), searched);
}

} // namespace lodestar
