// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Views/Common/DetailViewController.h"
#include "Views/Common/RootXMLReceiving.h"
#include "Views/Common/ScreenLog.h"

namespace lodestar
{

/// The facts of one logical partition or virtual I/O server: name, number, type.
class PartitionDetailViewController : public lodestar::DetailViewController, public RootXMLReceiving
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")

public:
    /// `fileName` is that of ScreenLog; `title` must be translated already.
    PartitionDetailViewController(std::string_view fileName, const QString& title);

    virtual void populatePartitionDetails();

protected:
    void viewDidLoad() override;
    const ScreenLog& log() const { return m_log; }

private:
    ScreenLog m_log;
};

} // namespace lodestar
