// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "XML/XMLElement.h"

#include <utility>

namespace lodestar
{

/// A screen that shows one element of a feed. Main thread.
class RootXMLReceiving
{
public:
    const XMLElement& rootXML() const { return m_rootXML; }
    /// Before the screen is put into a container.
    void setRootXML(XMLElement rootXML) { m_rootXML = std::move(rootXML); }

private:
    XMLElement m_rootXML;
};

} // namespace lodestar
