// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/Appearance.h"

#include "Kit/Core/UIFont+System.h"

#include <QEvent>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QHash>
#include <QPalette>
#include <QQmlEngine>
#include <QScreen>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace lodestar
{

namespace
{

/// Rounds to quarters: a screen that measures a little over 96 dots per inch does not mean larger text.
double inQuarters(double scale)
{
    return std::round(scale * 4) / 4;
}

/// On platforms that draw in the screen's own points, desktops tell their text size as a resolution.
double textScaleOfScreen()
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen != nullptr ? inQuarters(screen->logicalDotsPerInch() / 96) : 1;
}

/// An X server has a single number for text size times screen density, Xft.dpi. The platform scales everything by it,
/// text included, before the program can ask for the desktop's own factor; applying that factor too would scale twice.
bool isTextScaledByPlatform()
{
    return QGuiApplication::platformName() == QLatin1String("xcb");
}

/// Whether the application's own face lacks the letter, as far as scripts tell; what lies between them are signs.
bool isOfAnotherFace(QChar letter)
{
    constexpr char16_t firstForeign = 0x0590;
    constexpr char16_t firstSign = 0x2000;
    constexpr char16_t lastSign = 0x2bff;
    const char16_t code = letter.unicode();
    return code >= firstForeign && (code < firstSign || code > lastSign) && !letter.isSurrogate();
}

/// How far above its line the face begins that supplies the letter. Scripts have one face each, and are measured once.
double ascentOf(QChar letter, const QFont& font)
{
    static QHash<std::pair<int, int>, double> known;
    const std::pair<int, int> key(font.pixelSize(), letter.script());
    if (const auto found = known.constFind(key); found != known.constEnd()) {
        return *found;
    }
    QTextLayout layout(QString(letter), font);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(font.pixelSize() * 2); // a line has no height before
    const double ascent = line.ascent();
    layout.endLayout();
    known.insert(key, ascent);
    return ascent;
}

} // namespace

Appearance::Appearance()
{
    UIFont::awaitInstalled();
    QGuiApplication::instance()->installEventFilter(this);
    QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
}

Appearance& Appearance::shared()
{
    static Appearance appearance;
    return appearance;
}

Appearance* Appearance::create(QQmlEngine* /*qml*/, QJSEngine* /*js*/)
{
    return &shared();
}

bool Appearance::isDark() const
{
    return m_dark.value_or(QGuiApplication::palette().color(QPalette::Window).lightness() < 128);
}

double Appearance::textScale() const
{
    const double ofDesktop = isTextScaledByPlatform() ? 1 : inQuarters(m_systemTextScale);
    return std::clamp(m_textScale.value_or(std::max(textScaleOfScreen(), ofDesktop)), 1.0, 2.0);
}

bool Appearance::isHighContrast() const
{
    return m_highContrast.value_or(m_systemHighContrast);
}

bool Appearance::isMirrored() const
{
    return m_mirrored.value_or(QGuiApplication::layoutDirection() == Qt::RightToLeft);
}

bool Appearance::isReducedMotion() const
{
    return m_reducedMotion.value_or(m_systemReducedMotion);
}

double Appearance::textDrop(int pixelSize, double lineHeight, double devicePixelRatio, const QString& text) const
{
    const QFont font = UIFont::systemFontOfSize(pixelSize);
    const QFontMetricsF metrics(font);
    const double baseline = (lineHeight + metrics.capHeight()) / 2;
    const double ratio = std::max(1.0, devicePixelRatio);
    const auto* const foreign = std::ranges::find_if(text, &isOfAnotherFace);
    const double ascent =
        foreign != text.end() ? std::max(metrics.ascent(), ascentOf(*foreign, font)) : metrics.ascent();
    return std::round(baseline * ratio) / ratio - ascent;
}

bool Appearance::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == QGuiApplication::instance() && (event->type() == QEvent::ApplicationPaletteChange ||
                                                   event->type() == QEvent::ApplicationLayoutDirectionChange)) {
        Q_EMIT changed();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace lodestar
