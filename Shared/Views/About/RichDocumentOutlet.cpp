// SPDX-License-Identifier: Apache-2.0
#include "Views/About/RichDocumentOutlet.h"

#include "Charts/PieValueText.h"
#include "Kit/Core/OnMain.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace lodestar
{
namespace
{

constexpr double twips = 20; // twips per point
constexpr double readableContrast = 4.5;

RichParagraph layout(const RichTextParagraph& paragraph)
{
    const RichTextStyle& style = paragraph.runs.empty() ? RichTextStyle() : paragraph.runs.front().style;
    RichParagraph row;
    row.left = std::max(0, paragraph.leftIndent) / twips;
    row.before = paragraph.spaceBefore / twips;
    row.after = paragraph.spaceAfter / twips;
    row.size = style.halfPoints / 2.0;
    row.marker = QString::fromStdString(paragraph.marker);
    row.markerLeft = std::max(0, paragraph.leftIndent + paragraph.firstLineIndent) / twips;
    row.runs = QList<RichTextRun>(paragraph.runs.begin(), paragraph.runs.end());
    for (const RichTextRun& run : paragraph.runs) {
        row.text += QString::fromStdString(run.text);
    }
    return row;
}

QString runMarkup(const RichTextRun& run, double scale, const QColor& ground, const QColor& ink)
{
    const RichTextStyle& style = run.style;
    const QColor color =
        style.color ? readableColor(QColor(style.color->red, style.color->green, style.color->blue), ground, ink) : ink;
    QString css = QStringLiteral("white-space:pre-wrap;font-size:%1px;color:%2")
                      .arg(std::max(1, static_cast<int>(std::lround(style.halfPoints / 2.0 * scale))))
                      .arg(color.name());
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

} // namespace

QColor readableColor(const QColor& color, const QColor& ground, const QColor& ink)
{
    if (contrastRatio(color, ground) >= readableContrast) {
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
    const float target = contrastRatio(Qt::white, ground) > contrastRatio(Qt::black, ground) ? 1.0F : 0.0F;
    for (int step = 1; step < steps; ++step) {
        const float share = static_cast<float>(step) / steps;
        const QColor shade =
            QColor::fromHslF(std::max(0.0F, hue), saturation, lightness + (target - lightness) * share);
        if (contrastRatio(shade, ground) >= readableContrast) {
            return shade;
        }
    }
    return ink;
}

void RichDocumentOutlet::setDocument(const std::vector<RichTextParagraph>& document)
{
    QList<RichParagraph> paragraphs;
    std::ranges::transform(document, std::back_inserter(paragraphs), layout);
    onMain(this, [paragraphs = std::move(paragraphs)](RichDocumentOutlet& outlet) {
        outlet.m_paragraphs = paragraphs;
        Q_EMIT outlet.paragraphsChanged();
    });
}

QString RichDocumentOutlet::markup(const RichParagraph& paragraph, double scale, const QColor& ground,
                                   const QColor& ink)
{
    QString text;
    for (const RichTextRun& run : paragraph.runs) {
        text += runMarkup(run, scale, ground, ink);
    }
    return text;
}

} // namespace lodestar
