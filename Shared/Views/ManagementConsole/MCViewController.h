// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/Bars.h"
#include "Kit/Core/Outlets.h"
#include "Views/Common/CorvelReceiving.h"
#include "Views/Common/DetailViewController.h"
#include "Views/Common/TitleHeader.h"
#include "XML/XMLElement.h"

namespace lodestar
{

/// A console's facts about itself: name, model, version. They come from the console's last whole fetch if that fetch
/// has ended; otherwise they are fetched. Main thread.
class MCViewController : public lodestar::DetailViewController, public CorvelReceiving
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")
    Q_PROPERTY(lodestar::TitleHeader* header READ header CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* contentLabel READ contentLabel CONSTANT)
    Q_PROPERTY(lodestar::IndicatorOutlet* fetchingActivityIndicator READ fetchingActivityIndicator CONSTANT)
    Q_PROPERTY(lodestar::BarButtonOutlet* rightBarButton READ rightBarButton CONSTANT)

public:
    MCViewController();

    TitleHeader* header() { return &m_header; }
    /// Visible when the fetch failed.
    LabelOutlet* contentLabel() { return &m_contentLabel; }
    IndicatorOutlet* fetchingActivityIndicator() { return &m_fetchingActivityIndicator; }
    /// The button that refreshes; visible only while there is nothing to show.
    BarButtonOutlet* rightBarButton() { return &m_rightBarButton; }

    void fetchSystemInformation();
    void populateTableViewFromXML(const XMLElement& feedRoot);
    void parseTimeStampFromXML(const XMLElement& feedRoot);

protected:
    void viewDidLoad() override;

private:
    void fetchAfresh();
    void offerRefresh();
    void refreshFromButton();

    TitleHeader m_header;
    LabelOutlet m_contentLabel;
    IndicatorOutlet m_fetchingActivityIndicator;
    BarButtonOutlet m_rightBarButton;
};

} // namespace lodestar
