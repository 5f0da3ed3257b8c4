// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/UIFont+System.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QLoggingCategory>

#include <cmath>
#include <utility>

namespace lodestar
{

QFont UIFont::systemFontOfSize(double size)
{
    return fontWithName(QStringLiteral("Avenir Book"), size);
}

QFont UIFont::boldSystemFontOfSize(double size)
{
    return systemFontOfSize(size);
}

QFont UIFont::fontWithName(const QString& family, double size)
{
    QFont font(family);
    font.setPixelSize(static_cast<int>(std::lround(size)));
    return font;
}

void UIFont::install()
{
    static bool installed = false;
    if (std::exchange(installed, true)) {
        return;
    }
    if (QFontDatabase::addApplicationFont(QStringLiteral(":/fonts/Lato-Regular.ttf")) < 0) {
        qWarning("The application's typeface cannot be read");
    }
    // Lato has no Arabic, Hebrew, Thai or East Asian letters; these take over where they are installed, and the
    // system's own fallback where not.
    QFont::insertSubstitutions(QStringLiteral("Avenir Book"),
                               {QStringLiteral("Lato"), QStringLiteral("Noto Sans Arabic"),
                                QStringLiteral("Noto Sans Hebrew"), QStringLiteral("Noto Sans Thai"),
                                QStringLiteral("Noto Sans CJK SC")});
    QFont::insertSubstitution(QStringLiteral("HelveticaNeue"), QStringLiteral("Nimbus Sans"));
    QGuiApplication::setFont(systemFontOfSize(17));
}

} // namespace lodestar
