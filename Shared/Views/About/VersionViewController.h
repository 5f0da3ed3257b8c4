// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Views/About/RichDocumentViewController.h"

namespace lodestar
{

/// Shows the release notes.
class VersionViewController : public lodestar::RichDocumentViewController
{
    Q_OBJECT

public:
    VersionViewController() : RichDocumentViewController("VersionChangelog", tr("Release Notes")) {}
};

} // namespace lodestar
