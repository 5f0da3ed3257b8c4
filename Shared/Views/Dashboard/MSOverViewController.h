// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Views/Common/CorvelReceiving.h"
#include "Views/Common/MenuTableViewController.h"
#include "Views/Common/RootXMLReceiving.h"

namespace lodestar
{

/// The menu of one managed system: performance, partitions, details.
class MSOverViewController : public lodestar::MenuTableViewController, public CorvelReceiving, public RootXMLReceiving
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")

public:
    /// The element that the screen was opened with.
    const XMLElement& system() const { return rootXML(); }
    void setSystem(XMLElement system) { setRootXML(std::move(system)); }

protected:
    void viewDidLoad() override;
    Sections makeSections() const override;

private:
    std::optional<std::string> firstSystemID() const;
};

} // namespace lodestar
