// SPDX-License-Identifier: Apache-2.0
#include "Tools/Screenshots/TourPictures.h"

#include "Application/IntroView.h"
#include "Kit/Core/Appearance.h"
#include "Kit/Core/Languages.h"
#include "Kit/Core/UIColor+Tessel.h"
#include "Kit/Core/UIFont+System.h"
#include "Tools/Screenshots/Looks.h"

#include <QLocale>
#include <QPainter>
#include <QPainterPath>
#include <QTextLayout>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <stdexcept>
#include <string_view>
#include <utility>
#include <vector>

namespace lodestar::scenes
{
namespace
{

// Points of a page. The kit's intro widget counts on where the words stand: when they would be too small to read, it
// shows only the part of the picture above them.
constexpr QSize pageSize(390, 844);
constexpr QRectF screenFrame(45, 64, 300, 500);
// The part of the screen above the tab bar has the frame's proportions.
constexpr QSize screenSize(390, 706);
constexpr double wordsTop = 676;
constexpr double wordsWidth = 316;
constexpr int headingSize = 28;
constexpr int headingLine = 36;
constexpr int wordsSize = 17;
constexpr int wordsLine = 22;

const QColor night("#0B2236");
const QColor wordsColor("#BFD3E3");
const QColor starColor("#9AD6F8");

Look lookNamed(std::string_view name, const std::vector<Look>& looks)
{
    const auto found = std::find_if(looks.begin(), looks.end(), [name](const Look& look) { return look.name == name; });
    if (found == looks.end()) {
        throw std::logic_error("no look is called " + std::string(name));
    }
    return *found;
}

/// The screens for the tour's pages, in the pages' order.
std::vector<Look> looksOfPages()
{
    std::vector<ConsoleLook> fetched = fleet();
    for (ConsoleLook& console : fetched) {
        console.state = console.state == ConsoleLook::State::Fetching ? ConsoleLook::State::Online : console.state;
    }
    return {
        {"list", fetched, [](SceneStage&) {}},
        {"dashboard", fetched,
         [](SceneStage& stage) {
             stage.showDashboard();
             stage.waitFor([&] { return !stage.dashboard().corvelOnlineCount()->isHidden(); });
             stage.settle(1900);
         }},
        lookNamed("managed-systems", inventoryLooks()),
        lookNamed("partitions", groupedLooks()),
        lookNamed("performance-processors", performanceLooks()),
        lookNamed("settings-on", lockLooks()),
    };
}

void drawSky(QPainter& painter)
{
    struct Star {
        QPointF at;
        double radius;
        double opacity;
    };
    painter.setPen(Qt::NoPen);
    painter.setBrush(starColor);
    for (const Star& star : {Star{{22, 92}, 1.2, 0.7}, Star{{366, 60}, 1.1, 0.6}, Star{{132, 36}, 0.8, 0.5},
                             Star{{240, 24}, 1, 0.5}, Star{{374, 236}, 1.3, 0.7}, Star{{18, 318}, 0.9, 0.45},
                             Star{{30, 470}, 1, 0.5}, Star{{362, 430}, 0.9, 0.5}}) {
        painter.setOpacity(star.opacity);
        painter.drawEllipse(star.at, star.radius, star.radius);
    }
    // The list's mirror image in calm water.
    painter.setBrush(UIColor::selectedBlue());
    struct Ripple {
        double width;
        double opacity;
    };
    double y = screenFrame.bottom() + 24;
    for (const Ripple& ripple : {Ripple{222, 0.9}, Ripple{134, 0.5}, Ripple{66, 0.28}}) {
        painter.setOpacity(ripple.opacity);
        painter.drawRoundedRect(QRectF((pageSize.width() - ripple.width) / 2, y, ripple.width, 6), 3, 3);
        y += 24;
    }
    painter.setOpacity(1);
}

void drawScreen(QPainter& painter, const QImage& screen)
{
    const double ratio = screen.width() / screenFrame.width();
    const QSize pixels = (screenFrame.size() * 2).toSize();
    const QImage part = screen.copy(0, 0, screen.width(), qRound(screenFrame.height() * ratio))
                            .scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QPainterPath corners;
    corners.addRoundedRect(screenFrame, 16, 16);
    QBrush brush(part);
    brush.setTransform(QTransform::fromTranslate(screenFrame.x(), screenFrame.y()).scale(0.5, 0.5));
    painter.setPen(Qt::NoPen);
    painter.fillPath(corners, brush);
}

/// Returns where the last line ends.
double drawLines(QPainter& painter, const QString& text, int size, int line, double width, double top)
{
    QTextLayout layout(text, UIFont::systemFontOfSize(size), painter.device());
    QTextOption option(Qt::AlignHCenter);
    option.setWrapMode(QTextOption::WordWrap);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine row = layout.createLine(); row.isValid(); row = layout.createLine()) {
        row.setLineWidth(width);
        row.setPosition({(pageSize.width() - width) / 2, top + (line - row.height()) / 2});
        top += line;
    }
    layout.endLayout();
    layout.draw(&painter, {});
    return top;
}

QImage makePage(const QImage& screen, const IntroPage& page)
{
    QImage image(pageSize * 2, QImage::Format_RGB32);
    image.setDevicePixelRatio(2);
    image.fill(night);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform | QPainter::TextAntialiasing);
    drawSky(painter);
    drawScreen(painter, screen);
    painter.setPen(Qt::white);
    const double below = drawLines(painter, page.heading, headingSize, headingLine, pageSize.width() - 48.0, wordsTop);
    painter.setPen(wordsColor);
    drawLines(painter, page.words, wordsSize, wordsLine, wordsWidth, below + 8);
    return image;
}

bool writePictures(SceneStage& stage, const QDir& folder)
{
    folder.mkpath(QStringLiteral("."));
    const std::vector<Look> looks = looksOfPages();
    const std::vector<IntroPage> pages = IntroView::pages();
    for (std::size_t i = 0; i < pages.size(); ++i) {
        const Look& look = looks.at(i);
        stage.show(screenSize, look.consoles);
        look.prepare(stage);
        stage.settle();
        const QImage picture = withPalette(makePage(stage.grab(), pages[i]));
        const QString file = folder.filePath(QStringLiteral("ts%1.png").arg(i + 1));
        if (!picture.save(file, "PNG", 0)) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(file));
            return false;
        }
    }
    return true;
}

} // namespace

QImage withPalette(const QImage& image)
{
    std::map<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        const auto* const line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        std::for_each(line, line + image.width(), [&](QRgb color) { ++counts[color]; });
    }
    std::vector<std::pair<QRgb, int>> colors(counts.begin(), counts.end());
    std::stable_sort(colors.begin(), colors.end(),
                     [](const auto& left, const auto& right) { return left.second > right.second; });
    const auto isClose = [](QRgb left, QRgb right) {
        return std::max({std::abs(qRed(left) - qRed(right)), std::abs(qGreen(left) - qGreen(right)),
                         std::abs(qBlue(left) - qBlue(right))}) <= 5;
    };
    QList<QRgb> palette;
    for (const auto& counted : colors) {
        const QRgb color = counted.first;
        if (palette.size() < 256 &&
            std::none_of(palette.begin(), palette.end(), [&](QRgb chosen) { return isClose(chosen, color); })) {
            palette.append(color);
        }
    }
    return image.convertToFormat(QImage::Format_Indexed8, palette, Qt::ThresholdDither);
}

bool writeTourPictures(SceneStage& stage, const QDir& folder)
{
    Appearance::shared().overrideDark(false);
    for (const QString& language : Languages::all()) {
        Languages::use({language});
        Appearance::shared().overrideMirrored(QLocale(language).textDirection() == Qt::RightToLeft);
        const bool isBase = language == Languages::all().front();
        if (!writePictures(stage, isBase ? folder : QDir(folder.filePath(language)))) {
            return false;
        }
    }
    return true;
}

} // namespace lodestar::scenes
