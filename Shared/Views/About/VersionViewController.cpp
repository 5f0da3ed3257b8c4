// SPDX-License-Identifier: Apache-2.0
#include "Views/About/VersionViewController.h"

namespace lodestar
{

void VersionViewController::viewDidLoad()
{
    setTitle(tr("Release Notes"));
    setupWebView();
}

} // namespace lodestar
