// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/UIFont+System.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QLocale>
#include <QLoggingCategory>

#include <cmath>
#include <future>
#include <utility>

namespace lodestar
{

namespace
{

/// Whether the shipped face could be read. Invalid before the installation starts and after it has been awaited.
std::future<bool>& reading()
{
    static std::future<bool> future;
    return future;
}

bool readFaces()
{
    // The system's faces are read first; otherwise Qt would read the shipped face twice.
    QFontDatabase::families();
    return QFontDatabase::addApplicationFont(QStringLiteral(":/fonts/Lato-Regular.ttf")) >= 0;
}

QFont named(const QString& family, double size)
{
    QFont font(family);
    font.setPixelSize(static_cast<int>(std::lround(size)));
    return font;
}

const QString systemFamily = QStringLiteral("Avenir Book");

} // namespace

QFont UIFont::systemFontOfSize(double size)
{
    awaitInstalled();
    return named(systemFamily, size);
}

QFont UIFont::boldSystemFontOfSize(double size)
{
    return systemFontOfSize(size);
}

void UIFont::install()
{
    static bool installed = false;
    if (std::exchange(installed, true)) {
        return;
    }
    // Lato has no Arabic, Hebrew, Thai or East Asian letters. These faces supply them where they are installed;
    // elsewhere the system's fallback does. China and Japan write many letters of one code differently.
    const bool isJapanese = QLocale().language() == QLocale::Japanese;
    QFont::insertSubstitutions(systemFamily,
                               {QStringLiteral("Lato"), QStringLiteral("Noto Sans Arabic"),
                                QStringLiteral("Noto Sans Hebrew"), QStringLiteral("Noto Sans Thai"),
                                isJapanese ? QStringLiteral("Noto Sans CJK JP") : QStringLiteral("Noto Sans CJK SC")});
    QFont::insertSubstitution(QStringLiteral("HelveticaNeue"), QStringLiteral("Nimbus Sans"));
    QGuiApplication::setFont(named(systemFamily, 17));
    // An application that ends at once must wait for the reading thread before it destroys the platform's faces.
    qAddPostRoutine(&UIFont::awaitInstalled);
    // Reading the system's list of faces takes half as long as compiling the first screen, so a thread does it.
    reading() = std::async(std::launch::async, &readFaces);
}

void UIFont::awaitInstalled()
{
    if (reading().valid() && !reading().get()) {
        qWarning("The application's typeface cannot be read");
    }
}

} // namespace lodestar
