// SPDX-License-Identifier: Apache-2.0
#include "Views/About/OrnisLicenseViewController.h"

namespace lodestar
{

void OrnisLicenseViewController::viewDidLoad()
{
    setTitle(tr("Ornis License"));
    setupWebView();
}

} // namespace lodestar
