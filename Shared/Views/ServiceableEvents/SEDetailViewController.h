// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Views/Common/DetailViewController.h"
#include "Views/Common/RootXMLReceiving.h"
#include "Views/Report/ReportContent.h"

namespace lodestar
{

class FieldReplaceableUnit;

/// All recorded facts of one serviceable event, and a section for each of its field-replaceable units. Rows use the
/// separator '~', because codes and times contain colons.
class SEDetailViewController : public lodestar::DetailViewController, public RootXMLReceiving
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")

public:
    SEDetailViewController();

    void populateEventDetails();
    bool offersReport() const override { return true; }
    void openReport() override;

protected:
    void viewDidLoad() override;

private:
    DetailSection mainInformation() const;
    DetailSection unitInformation(const FieldReplaceableUnit& unit) const;

    ReportSource m_source;
};

} // namespace lodestar
