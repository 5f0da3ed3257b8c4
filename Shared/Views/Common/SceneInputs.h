// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/Model/Corvel.h"
#include "XML/XMLElement.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace lodestar
{

class ViewController;

/// What screens are opened with beside a console (CorvelReceiving). Openers reach screens by their scene alone and hand
/// over through these, before the screen is put into a container. Main thread.

/// A screen that shows one element of a feed.
class RootXMLReceiving
{
public:
    virtual ~RootXMLReceiving() = default;
    const XMLElement& rootXML() const { return m_rootXML; }
    virtual void setRootXML(XMLElement rootXML) { m_rootXML = std::move(rootXML); }

private:
    XMLElement m_rootXML;
};

/// A list that can narrow itself to one managed system, named despite its name by `partitionName`; none for all.
class PartitionNarrowing
{
public:
    virtual ~PartitionNarrowing() = default;
    virtual void setPartitionName(std::optional<std::string> partitionName) = 0;
};

/// A screen that shows the performance of one managed system: its name, none when the opener has none to give, and the
/// identifier that its metrics go by.
class PerformanceReceiving
{
public:
    virtual ~PerformanceReceiving() = default;
    virtual void setSysName(std::optional<std::string> sysName) = 0;
    virtual void setSystemID(std::optional<std::string> systemID) = 0;
};

/// Everything that a scene may be given; each scene takes what it receives.
struct SceneInputs {
    CorvelRef corvel{};
    XMLElement rootXML{};
    std::optional<std::string> partitionName{};
    std::optional<std::string> sysName{};
    std::optional<std::string> systemID{};
};

/// Opens a scene of the storyboard with its inputs, pushed on the stack of `from`, animated. False, and nothing
/// happens, for a scene that does not exist and for a screen that is on no stack.
bool openScene(const ViewController& from, std::string_view identifier, SceneInputs inputs);

} // namespace lodestar
