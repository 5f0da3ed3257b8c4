// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/Outlets.h"

#include <QStringList>

namespace lodestar
{

/// A long text to be read: a view that shows it scrolls. Set from any thread, read on the main thread.
class TextViewOutlet : public lodestar::ViewOutlet
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by controllers")
    Q_PROPERTY(QStringList pieces READ pieces NOTIFY piecesChanged)

public:
    explicit TextViewOutlet(QObject* parent = nullptr) : ViewOutlet(parent) {}
    const QString& attributedText() const { return m_attributedText; }
    void setAttributedText(const QString& text);

    /// The text in pieces of some paragraphs each, line feeds between: an item that drew it whole would take seconds.
    /// They follow the text once the main queue comes to it, however often it was set meanwhile.
    const QStringList& pieces() const { return m_pieces; }

Q_SIGNALS:
    void piecesChanged();

private:
    void cut();

    QString m_attributedText;
    QStringList m_pieces;
    bool m_willCut = false;
};

} // namespace lodestar
