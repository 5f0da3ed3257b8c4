// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Views/About/ReadingController.h"
#include "Views/About/TextViewOutlet.h"

namespace lodestar
{

/// Shows the notices of the libraries that the application uses. Main thread.
class OpenSourceViewController : public lodestar::ReadingController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")
    Q_PROPERTY(lodestar::TextViewOutlet* licenseText READ licenseText CONSTANT)

public:
    TextViewOutlet* licenseText() { return &m_licenseText; }
    /// Reads every file of the package's folder "OpenSourceLicenses" in the background and puts the texts into the
    /// view. Above each text stands the file's name without its last four characters. The order is that in which the
    /// folder lists its files; they are not sorted. A folder that cannot be read leaves the view empty; a file that
    /// cannot be read has its name but no text.
    void setupLicenseView();

protected:
    void viewDidLoad() override;
    QStringList pieces() const override { return m_licenseText.pieces(); }

private:
    TextViewOutlet m_licenseText;
};

} // namespace lodestar
