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

/// The inputs of screens besides the console (CorvelReceiving). Openers know only a screen's scene; they pass inputs
/// through these interfaces before the screen is put into a container. Main thread.

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

/// A list that can be narrowed to one managed system. Despite its name, `partitionName` is the system's name; nothing
/// means all systems.
class PartitionNarrowing
{
public:
    virtual ~PartitionNarrowing() = default;
    virtual void setPartitionName(std::optional<std::string> partitionName) = 0;
};

/// A screen that shows the performance of one managed system. It gets the system's name, which is nothing when the
/// opener does not know it, and the identifier by which metrics are requested.
class PerformanceReceiving
{
public:
    virtual ~PerformanceReceiving() = default;
    virtual void setSysName(std::optional<std::string> sysName) = 0;
    virtual void setSystemID(std::optional<std::string> systemID) = 0;
};

/// All inputs that a scene may be given; each scene takes those it receives.
struct SceneInputs {
    CorvelRef corvel{};
    XMLElement rootXML{};
    std::optional<std::string> partitionName{};
    std::optional<std::string> sysName{};
    std::optional<std::string> systemID{};
};

/// Opens a scene of the storyboard with its inputs: pushes it, animated, on the stack of `from`. Returns false and does
/// nothing if the scene does not exist or `from` is on no stack.
bool openScene(const ViewController& from, std::string_view identifier, SceneInputs inputs);

} // namespace lodestar
