// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/UIFont+System.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QLoggingCategory>

#include <cmath>
#include <future>
#include <utility>

namespace lodestar
{

namespace
{

/// Whether the face that is shipped could be read. Invalid until the installation starts and once it has been awaited.
std::future<bool>& reading()
{
    static std::future<bool> future;
    return future;
}

bool readFaces()
{
    // The system's faces first: read after ours, they would have ours read once more.
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
    return fontWithName(systemFamily, size);
}

QFont UIFont::boldSystemFontOfSize(double size)
{
    return systemFontOfSize(size);
}

QFont UIFont::fontWithName(const QString& family, double size)
{
    awaitInstalled();
    return named(family, size);
}

void UIFont::install()
{
    static bool installed = false;
    if (std::exchange(installed, true)) {
        return;
    }
    // Lato has no Arabic, Hebrew, Thai or East Asian letters; these take over where they are installed, and the
    // system's own fallback where not.
    QFont::insertSubstitutions(systemFamily, {QStringLiteral("Lato"), QStringLiteral("Noto Sans Arabic"),
                                              QStringLiteral("Noto Sans Hebrew"), QStringLiteral("Noto Sans Thai"),
                                              QStringLiteral("Noto Sans CJK SC")});
    QFont::insertSubstitution(QStringLiteral("HelveticaNeue"), QStringLiteral("Nimbus Sans"));
    QGuiApplication::setFont(named(systemFamily, 17));
    // An application that ends at once must not take the platform's faces from under the reader.
    qAddPostRoutine(&UIFont::awaitInstalled);
    // The system's list of faces takes as long to read as half the first screen to compile.
    reading() = std::async(std::launch::async, &readFaces);
}

void UIFont::awaitInstalled()
{
    if (reading().valid() && !reading().get()) {
        qWarning("The application's typeface cannot be read");
    }
}

} // namespace lodestar
