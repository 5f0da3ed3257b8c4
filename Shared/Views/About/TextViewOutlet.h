// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/Outlets.h"

#include <QStringList>

namespace lodestar
{

/// A long text in a view that scrolls. Set from any thread, read on the main thread.
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

    /// The text in pieces of some paragraphs each, without the line feeds between pieces: one item for the whole text
    /// would take seconds to draw. The main queue renews the pieces after the text was set, once for any number of
    /// changes.
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
