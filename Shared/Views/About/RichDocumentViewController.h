// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Views/About/ReadingController.h"
#include "Views/About/RichDocumentOutlet.h"

#include <string>

namespace lodestar
{

/// A screen that shows one rich text of the application's package. Main thread.
class RichDocumentViewController : public lodestar::ReadingController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")
    Q_PROPERTY(lodestar::RichDocumentOutlet* webview READ webview CONSTANT)

public:
    RichDocumentOutlet* webview() { return &m_webview; }
    /// Reads the text in the background and puts it into the view, which stays empty when there is no text.
    void setupWebView();

protected:
    /// `resource` is the resource's name without the extension "rtf"; `title` must be translated already.
    RichDocumentViewController(std::string resource, const QString& title) : m_resource(std::move(resource))
    {
        setTitle(title);
    }
    void viewDidLoad() override { setupWebView(); }
    QStringList pieces() const override;

private:
    std::string m_resource;
    RichDocumentOutlet m_webview;
};

} // namespace lodestar
