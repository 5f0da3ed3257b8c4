// SPDX-License-Identifier: Apache-2.0
#include "Views/About/RichDocumentViewController.h"

#include "Platform/Queues/DispatchQueue.h"
#include "Platform/Resources.h"

namespace lodestar
{

void RichDocumentViewController::setupWebView()
{
    // The text may be megabytes, so the main thread must not read it.
    DispatchQueue::globalBackground().async([screen = self<RichDocumentViewController>()] {
        const auto bytes = Resources::main().contents(screen->m_resource, "rtf");
        screen->webview()->setDocument(readRichText(bytes.value_or("")));
    });
}

QStringList RichDocumentViewController::pieces() const
{
    QStringList texts;
    for (const RichParagraph& paragraph : m_webview.paragraphs()) {
        texts << (paragraph.marker.isEmpty() ? paragraph.text : paragraph.marker + QLatin1Char(' ') + paragraph.text);
    }
    return texts;
}

} // namespace lodestar
