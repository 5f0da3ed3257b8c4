// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Views/Common/DetailViewController.h"
#include "Views/Common/SceneInputs.h"

namespace lodestar
{

class FieldReplaceableUnit;

/// Every recorded fact of one serviceable event, and a section for each field-replaceable unit associated with it. The
/// separator of its rows is '~', since codes and times hold colons.
class SEDetailViewController : public lodestar::DetailViewController, public RootXMLReceiving
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")

public:
    SEDetailViewController();

    void populateEventDetails();

protected:
    void viewDidLoad() override;

private:
    DetailSection mainInformation() const;
    DetailSection unitInformation(const FieldReplaceableUnit& unit) const;
};

} // namespace lodestar
