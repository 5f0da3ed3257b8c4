// SPDX-License-Identifier: Apache-2.0
#include "Views/About/RichDocumentOutlet.h"

#include "Kit/Core/OnMain.h"

#include <QFontDatabase>

#include <algorithm>
#include <cmath>
#include <utility>

namespace lodestar
{
namespace
{

constexpr double twips = 20; // twips per point
constexpr double readableContrast = 4.5;

double linear(double component)
{
    return component <= 0.04045 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor& a, const QColor& b)
{
    const double first = luminance(a);
    const double second = luminance(b);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

int textAlignment(RichTextAlignment alignment)
{
    switch (alignment) {
    case RichTextAlignment::Left:
        return Qt::AlignLeft;
    case RichTextAlignment::Center:
        return Qt::AlignHCenter;
    case RichTextAlignment::Right:
        return Qt::AlignRight;
    case RichTextAlignment::Justified:
        return Qt::AlignJustify;
    }
    return Qt::AlignLeft;
}

QString plainText(const RichTextParagraph& paragraph)
{
    std::string text;
    for (const RichTextRun& run : paragraph.runs) {
        text += run.text;
    }
    return QString::fromStdString(text);
}

RichParagraph layout(const RichTextParagraph& paragraph)
{
    const RichTextStyle& style = paragraph.runs.empty() ? paragraph.markerStyle : paragraph.runs.front().style;
    const double left = std::max(0, paragraph.leftIndent) / twips;
    const double first = std::max(0, paragraph.leftIndent + paragraph.firstLineIndent) / twips;
    RichParagraph row;
    row.alignment = textAlignment(paragraph.alignment);
    row.left = left;
    row.right = std::max(0, paragraph.rightIndent) / twips;
    row.before = paragraph.spaceBefore / twips;
    row.after = paragraph.spaceAfter / twips;
    row.size = style.halfPoints / 2.0;
    row.marker = QString::fromStdString(paragraph.marker);
    row.markerLeft = first;
    row.text = plainText(paragraph);
    return row;
}

} // namespace

QColor readableColor(const QColor& color, const QColor& ground, const QColor& ink)
{
    if (contrast(color, ground) >= readableContrast) {
        return color;
    }
    const auto [darkest, brightest] = std::minmax({color.redF(), color.greenF(), color.blueF()});
    if (brightest - darkest < 0.15F) {
        return ink;
    }
    float hue = 0;
    float saturation = 0;
    float lightness = 0;
    color.getHslF(&hue, &saturation, &lightness);
    constexpr int steps = 50;
    const float target = luminance(ground) < 0.18 ? 1.0F : 0.0F;
    for (int step = 1; step < steps; ++step) {
        const float share = static_cast<float>(step) / steps;
        const QColor shade =
            QColor::fromHslF(std::max(0.0F, hue), saturation, lightness + (target - lightness) * share);
        if (contrast(shade, ground) >= readableContrast) {
            return shade;
        }
    }
    return ink;
}

void RichDocumentOutlet::setDocument(RichTextDocument document)
{
    onMain(this, [document = std::move(document)](RichDocumentOutlet& outlet) mutable {
        outlet.beginResetModel();
        outlet.m_document = std::move(document);
        outlet.endResetModel();
    });
}

int RichDocumentOutlet::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_document.paragraphs.size());
}

QVariant RichDocumentOutlet::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount({})) {
        return {};
    }
    if (role == IndexRole) {
        return index.row();
    }
    return role == ParagraphRole
               ? QVariant::fromValue(layout(m_document.paragraphs[static_cast<std::size_t>(index.row())]))
               : QVariant();
}

QHash<int, QByteArray> RichDocumentOutlet::roleNames() const
{
    return {{ParagraphRole, "paragraph"}, {IndexRole, "place"}};
}

QString RichDocumentOutlet::markup(int row, double scale, const QColor& ground, const QColor& ink) const
{
    if (row < 0 || row >= rowCount({})) {
        return {};
    }
    QString text;
    for (const RichTextRun& run : m_document.paragraphs[static_cast<std::size_t>(row)].runs) {
        text += runMarkup(run, scale, ground, ink);
    }
    return text;
}

QString RichDocumentOutlet::runMarkup(const RichTextRun& run, double scale, const QColor& ground,
                                      const QColor& ink) const
{
    const RichTextStyle& style = run.style;
    const QColor color =
        style.color ? readableColor(QColor(style.color->red, style.color->green, style.color->blue), ground, ink) : ink;
    QString css = QStringLiteral("white-space:pre-wrap;font-size:%1px;color:%2;font-family:'%3'")
                      .arg(std::max(1, static_cast<int>(std::lround(style.halfPoints / 2.0 * scale))))
                      .arg(color.name(), family(style.font));
    if (style.bold) {
        css += QStringLiteral(";font-weight:bold");
    }
    if (style.italic) {
        css += QStringLiteral(";font-style:italic");
    }
    if (style.underline) {
        css += QStringLiteral(";text-decoration:underline");
    }
    const QString text =
        QString::fromStdString(run.text).toHtmlEscaped().replace(QLatin1Char('\n'), QStringLiteral("<br/>"));
    return QStringLiteral("<span style=\"%1\">%2</span>").arg(css, text);
}

QString RichDocumentOutlet::family(std::size_t font) const
{
    const QString asked = font < m_document.fonts.size() ? QString::fromStdString(m_document.fonts[font]) : QString();
    // A missing family is not passed on, because the system would choose some replacement. Quotes and semicolons are
    // refused because the name comes out of a file and goes into CSS.
    return QFontDatabase::hasFamily(asked) && !asked.contains(QLatin1Char('\'')) && !asked.contains(QLatin1Char('"')) &&
                   !asked.contains(QLatin1Char(';'))
               ? asked.toHtmlEscaped()
               : QStringLiteral("Avenir Book");
}

} // namespace lodestar
