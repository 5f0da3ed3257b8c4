// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Views/Common/DetailViewController.h"
#include "Views/Common/RootXMLReceiving.h"
#include "Views/Report/ReportContent.h"

namespace lodestar
{

/// The facts of one managed system. Its reference code opens the code's documentation in the system browser, if the
/// build was given the documentation's address (LODESTAR_REFERENCE_CODE_ADDRESS).
class MSDetailViewController : public lodestar::DetailViewController, public RootXMLReceiving
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")

public:
    /// `documentationBase` is the documentation's address without the code; empty for none.
    explicit MSDetailViewController(QString documentationBase = builtDocumentationBase());

    void populateSystemDetails();
    bool offersReport() const override { return true; }
    void openReport() override;

protected:
    void viewDidLoad() override;
    bool leadsOn(IndexPath indexPath) const override;
    void openRow(IndexPath indexPath) override;

private:
    static QString builtDocumentationBase();

    QString m_documentationBase;
    ReportSource m_source;
};

} // namespace lodestar
