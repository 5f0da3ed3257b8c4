// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/Outlets.h"
#include "Views/About/RichText/RichText.h"

#include <QAbstractListModel>

namespace lodestar
{

/// How one paragraph lies on the page. Points at 100 % text.
struct RichParagraph {
    Q_GADGET
    QML_VALUE_TYPE(richParagraph)
    Q_PROPERTY(int alignment MEMBER alignment)
    Q_PROPERTY(double left MEMBER left)
    Q_PROPERTY(double right MEMBER right)
    Q_PROPERTY(double before MEMBER before)
    Q_PROPERTY(double after MEMBER after)
    Q_PROPERTY(double size MEMBER size)
    Q_PROPERTY(QString marker MEMBER marker)
    Q_PROPERTY(double markerLeft MEMBER markerLeft)
    Q_PROPERTY(QString text MEMBER text)

public:
    int alignment = 0; ///< Text's
    double left = 0;
    double right = 0;
    double before = 0;
    double after = 0;
    double size = 0; ///< of its first characters
    QString marker{};
    double markerLeft = 0;
    QString text{}; ///< as it is read out
};

/// A view of a rich text: its paragraphs as a list of rows. Set from any thread, read on the main thread.
class RichDocumentOutlet : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by controllers")

public:
    enum Role { ParagraphRole = Qt::UserRole, IndexRole };

    using QAbstractListModel::QAbstractListModel;

    const RichTextDocument& document() const { return m_document; }
    void setDocument(RichTextDocument document);

    int rowCount(const QModelIndex& parent) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// A paragraph's text with its looks, for an item that draws rich text: sizes are multiplied, and colours that
    /// could not be read on the ground are replaced. Empty for a row that is not there.
    Q_INVOKABLE QString markup(int row, double scale, const QColor& ground, const QColor& ink) const;

private:
    QString runMarkup(const RichTextRun& run, double scale, const QColor& ground, const QColor& ink) const;
    QString family(std::size_t font) const;

    RichTextDocument m_document;
};

/// The colour, or where its contrast against the ground is below 4.5 the nearest shade of it that has that; greys
/// become the ink. The document's colours were chosen for white paper.
QColor readableColor(const QColor& color, const QColor& ground, const QColor& ink);

} // namespace lodestar
