// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/Outlets.h"
#include "Views/About/RichText/RichText.h"

#include <QColor>

namespace lodestar
{

/// The layout of one paragraph. Lengths in points at 100 % text.
struct RichParagraph {
    Q_GADGET
    QML_VALUE_TYPE(richParagraph)
    Q_PROPERTY(double left MEMBER left)
    Q_PROPERTY(double before MEMBER before)
    Q_PROPERTY(double after MEMBER after)
    Q_PROPERTY(double size MEMBER size)
    Q_PROPERTY(QString marker MEMBER marker)
    Q_PROPERTY(double markerLeft MEMBER markerLeft)
    Q_PROPERTY(QString text MEMBER text)

public:
    double left = 0;
    double before = 0;
    double after = 0;
    double size = 0; ///< size of its first characters
    QString marker{};
    double markerLeft = 0;
    QString text{}; ///< plain text for screen readers
    QList<RichTextRun> runs{};
};

/// A view of a rich text, paragraph by paragraph. Set from any thread, read on the main thread.
class RichDocumentOutlet : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by controllers")
    Q_PROPERTY(QList<lodestar::RichParagraph> paragraphs READ paragraphs NOTIFY paragraphsChanged)

public:
    const QList<RichParagraph>& paragraphs() const { return m_paragraphs; }
    void setDocument(const std::vector<RichTextParagraph>& document);

    /// The markup of a paragraph for an item that draws rich text. Sizes are multiplied by `scale`; colours that could
    /// not be read on `ground` are replaced.
    Q_INVOKABLE static QString markup(const lodestar::RichParagraph& paragraph, double scale, const QColor& ground,
                                      const QColor& ink);

Q_SIGNALS:
    void paragraphsChanged();

private:
    QList<RichParagraph> m_paragraphs;
};

/// The colour itself if its contrast against the ground is at least 4.5; otherwise the nearest shade that reaches 4.5,
/// or the ink for a grey. Needed because the document's colours were chosen for white paper.
QColor readableColor(const QColor& color, const QColor& ground, const QColor& ink);

} // namespace lodestar
