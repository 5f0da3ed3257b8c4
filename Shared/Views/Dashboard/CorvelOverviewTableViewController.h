// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Views/Common/CorvelReceiving.h"
#include "Views/Common/MenuTableViewController.h"

namespace lodestar
{

/// The menu of one console: the kinds of things that the console manages, with counts, and the console itself.
class CorvelOverviewTableViewController : public lodestar::MenuTableViewController, public CorvelReceiving
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")

protected:
    void viewDidLoad() override;
    Sections makeSections() const override;

private:
    QString countOf(std::string_view type) const;
};

} // namespace lodestar
