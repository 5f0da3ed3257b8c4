// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Inventory/Record.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

/// A console or a system that an event concerns.
class EventNode : public Record
{
public:
    using Record::Record;
    std::optional<std::string> hostName() const { return text("hostName"); }
    std::optional<std::string> model() const { return text({"managedTypeModelSerial", "Model"}); }
    MachineIdentity identity() const { return MachineIdentity(element().child("managedTypeModelSerial")); }
};

/// A part that may have to be replaced because of an event.
class FieldReplaceableUnit : public Record
{
public:
    using Record::Record;
    std::optional<std::string> partNumber() const { return text("partNumber"); }
    std::optional<std::string> unitClass() const { return text("class"); }
    std::optional<std::string> unitDescription() const { return text("fieldReplaceableUnitDescription"); }
    std::optional<std::string> locationCode() const { return text("locationCode"); }
    std::optional<std::string> previouslyReplaced() const { return text("previouslyReplaced"); }
    std::optional<std::string> replacedTimestamp() const { return text("replacedTimestamp"); }
    std::optional<std::string> replacementGroup() const { return text("replacementGroup"); }
};

/// Something that a console noticed and that a person may have to act on. Times are texts: seconds since 1970.
class ServiceableEvent : public Record
{
public:
    static constexpr std::string_view type = ObjectType::ServiceableEvent;
    using Record::Record;

    std::optional<std::string> problemNumber() const { return text("problemNumber"); }
    std::optional<std::string> callHomeEnabled() const { return text("callHomeEnabled"); }
    std::optional<std::string> hardwareRecord() const { return text("problemManagementHardwareRecord"); }
    std::optional<std::string> approvalState() const { return text("ApprovalState"); }
    std::optional<std::string> referenceCode() const { return text("referenceCode"); }
    std::optional<std::string> referenceCodeExtension() const { return text("referenceCodeExtension"); }
    std::optional<std::string> systemReferenceCode() const { return text("systemReferenceCode"); }
    std::optional<std::string> problemState() const { return text("problemState"); }
    std::optional<std::string> firmwareFix() const { return text("firmwareFix"); }
    std::optional<std::string> firstReported() const { return text("firstReportedTimestamp"); }
    std::optional<std::string> lastReported() const { return text("lastReportedTimestamp"); }
    std::optional<std::string> primaryTimestamp() const { return text("primaryTimestamp"); }
    std::optional<std::string> shortDescription() const { return text("shortDescription"); }
    std::optional<std::string> severity() const { return text("eventSeverity"); }
    std::optional<std::string> notificationType() const { return text("notificationType"); }
    std::optional<std::string> duplicateCount() const { return text("duplicateCount"); }
    EventNode reportingConsole() const { return EventNode(element().child("reportingConsoleNode")); }
    EventNode failingSystem() const { return EventNode(element().child("failingManagedSystemNode")); }
    EventNode analyzingConsole() const { return EventNode(element().child("analyzingConsoleNode")); }
    std::vector<FieldReplaceableUnit> units() const;

    /// Whether somebody still has to act. Case counts.
    bool isOpen() const { return isOpenState(problemState().value_or("")); }
    static bool isOpenState(std::string_view state) { return state == "Open"; }
    /// Whether the console reports the event to its maker by itself.
    bool callsHome() const { return callHomeEnabled() == "true"; }

    /// The approval state and the number, as in "Approved (#1042)". Lists show and search this text. A missing field is
    /// empty.
    std::string title() const;
};

} // namespace lodestar
