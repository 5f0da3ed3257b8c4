// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Views/Common/DetailViewController.h"
#include "Views/Common/SceneInputs.h"

namespace lodestar
{

/// The facts of one managed system. Its reference code leads to the code's documentation in the system browser.
class MSDetailViewController : public lodestar::DetailViewController, public RootXMLReceiving
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")

public:
    MSDetailViewController();

    void populateSystemDetails();

    /// Where a reference code is documented. Its base address is chosen when the program is built
    /// (LODESTAR_REFERENCE_CODE_URL).
    static QUrl documentationURL(const QString& referenceCode);

protected:
    void viewDidLoad() override;
    bool leadsOn(IndexPath indexPath) const override;
    void openRow(IndexPath indexPath) override;
};

} // namespace lodestar
