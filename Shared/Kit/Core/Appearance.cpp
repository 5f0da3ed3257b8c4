// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/Appearance.h"

#include "Kit/Core/UIFont+System.h"

#include <QEvent>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPalette>
#include <QQmlEngine>
#include <QScreen>

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

double Appearance::textDrop(int pixelSize, double lineHeight, double devicePixelRatio) const
{
    const QFontMetricsF metrics(UIFont::systemFontOfSize(pixelSize));
    const double baseline = (lineHeight + metrics.capHeight()) / 2;
    const double ratio = std::max(1.0, devicePixelRatio);
    return std::round(baseline * ratio) / ratio - metrics.ascent();
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
