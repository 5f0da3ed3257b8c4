// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Views/About/RichDocumentViewController.h"

namespace lodestar
{

/// Shows the maker's licence agreement. Nothing asks for consent.
class OrnisLicenseViewController : public lodestar::RichDocumentViewController
{
    Q_OBJECT

public:
    OrnisLicenseViewController() : RichDocumentViewController("Ornis_License_en", tr("Ornis License")) {}
};

} // namespace lodestar
