// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/ViewController.h"
#include "Views/About/TextViewOutlet.h"

namespace lodestar
{

/// The notices of the libraries that the application is made with. Main thread.
class OpenSourceViewController : public lodestar::ViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")
    Q_PROPERTY(lodestar::TextViewOutlet* licenseText READ licenseText CONSTANT)

public:
    TextViewOutlet* licenseText() { return &m_licenseText; }
    /// Has every file of the package's folder "OpenSourceLicenses" read into the view, each below its name without its
    /// last four characters, in the order in which the folder lists them: they are not sorted. A folder that cannot be
    /// read leaves the view empty, a file that cannot stands there without content.
    void setupLicenseView();

protected:
    void viewDidLoad() override;

private:
    TextViewOutlet m_licenseText;
};

} // namespace lodestar
