// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/Outlets.h"
#include "Views/About/RichText/RichText.h"

#include <QAbstractListModel>
#include <QColor>

namespace lodestar
{

/// The layout of one paragraph. Lengths in points at 100 % text.
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
    int alignment = 0; ///< a value of Text.horizontalAlignment
    double left = 0;
    double right = 0;
    double before = 0;
    double after = 0;
    double size = 0; ///< size of its first characters
    QString marker{};
    double markerLeft = 0;
    QString text{}; ///< plain text for screen readers
};

/// A view of a rich text: a list with one row per paragraph. Set from any thread, read on the main thread.
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

    /// The markup of a paragraph for an item that draws rich text. Sizes are multiplied by `scale`; colours that could
    /// not be read on `ground` are replaced. Empty for a row that does not exist.
    Q_INVOKABLE QString markup(int row, double scale, const QColor& ground, const QColor& ink) const;

private:
    QString runMarkup(const RichTextRun& run, double scale, const QColor& ground, const QColor& ink) const;
    QString family(std::size_t font) const;

    RichTextDocument m_document;
};

/// The colour itself if its contrast against the ground is at least 4.5; otherwise the nearest shade that reaches 4.5,
/// or the ink for a grey. Needed because the document's colours were chosen for white paper.
QColor readableColor(const QColor& color, const QColor& ground, const QColor& ink);

} // namespace lodestar
