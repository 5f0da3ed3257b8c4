// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Views/About/RichDocumentViewController.h"

namespace lodestar
{

/// The maker's licence agreement, which is displayed and nothing else.
class OrnisLicenseViewController : public lodestar::RichDocumentViewController
{
    Q_OBJECT

public:
    OrnisLicenseViewController() : RichDocumentViewController("Ornis_License_en") {}

protected:
    void viewDidLoad() override;
};

} // namespace lodestar
