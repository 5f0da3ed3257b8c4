// SPDX-License-Identifier: Apache-2.0
// lodestar-screenshots FOLDER [TEXT]: draws one picture per screen and look, without a display. With TEXT, draws only
// the pictures whose file name contains it.
//
// With --language CODE before or after: in this language.
//
// lodestar-screenshots --tour FOLDER: draws the tour's pictures in all languages, which are kept in Resources/tour.
//
// lodestar-screenshots --guide FOLDER: draws the pictures that the folder's pages show, in few colours. The user's
// guide is kept in docs/guide.
#include "Kit/Core/Appearance.h"
#include "Kit/Core/Languages.h"
#include "Kit/Core/MainLoop.h"
#include "Tools/Screenshots/Looks.h"
#include "Tools/Screenshots/TourPictures.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QSet>
#include <QStyleHints>

#include <cstdio>
#include <optional>

using namespace lodestar;
using namespace lodestar::scenes;

namespace
{

struct Variant {
    QSize size;
    QString suffix;
    bool dark = false;
    double textScale = 1;
    bool mirrored = false;
    bool highContrast = false;
};

std::vector<Variant> variantsOf(const Look& look)
{
    std::vector<Variant> variants = {{{360, 640}, "360"}, {{390, 844}, "390"}, {{768, 1024}, "768"}};
    if (look.isMain) {
        variants.push_back({{1280, 800}, "1280"});
        for (const QSize& size : {QSize(390, 844), QSize(768, 1024)}) {
            const QString width = QString::number(size.width());
            variants.push_back({size, width + "-dark", true});
            variants.push_back({size, width + "-text200", false, 2});
            variants.push_back({size, width + "-rtl", false, 1, true});
        }
        variants.push_back({{360, 640}, "360-text130", false, 1.3});
        for (const bool dark : {false, true}) {
            variants.push_back({{390, 844}, dark ? "390-contrast-dark" : "390-contrast", dark, 1, false, true});
        }
    }
    if (look.lies) {
        const QSize lying(844, 390);
        variants.insert(variants.end(), {{lying, "844"},
                                         {lying, "844-dark", true},
                                         {lying, "844-text200", false, 2},
                                         {lying, "844-rtl", false, 1, true}});
    }
    if (look.isWide) {
        const QSize wide(1280, 800);
        variants.insert(variants.end(), {{wide, "1280"},
                                         {wide, "1280-dark", true},
                                         {wide, "1280-text200", false, 2},
                                         {wide, "1280-rtl", false, 1, true},
                                         {{1000, 700}, "1000"},
                                         {{2560, 1000}, "2560"}});
    }
    return variants;
}

/// The names of the pictures that the folder's pages show.
QSet<QString> picturesOfPages(const QDir& folder)
{
    static const QRegularExpression picture(QStringLiteral("[a-z0-9-]+\\.png"));
    QSet<QString> names;
    for (const QString& page : folder.entryList({QStringLiteral("*.md")}, QDir::Files)) {
        QFile file(folder.filePath(page));
        if (file.open(QIODevice::ReadOnly)) {
            for (const QRegularExpressionMatch& found : picture.globalMatch(QString::fromUtf8(file.readAll()))) {
                names.insert(found.captured());
            }
        }
    }
    return names;
}

/// What is drawn, and where to.
struct Order {
    QDir folder;
    bool isGuide = false;
    QSet<QString> names; ///< of the guide's pictures
    QString part;        ///< of the names of all others

    bool wants(const QString& name) const { return isGuide ? names.contains(name) : name.contains(part); }
};

/// False when a page shows a picture that was not drawn: one of no look, or of a look that is not drawn so.
bool finishGuide(const Order& order, const QSet<QString>& drawn)
{
    for (const QString& name : order.names - drawn) {
        std::fprintf(stderr, "no screen looks like %s\n", qPrintable(name));
    }
    return drawn.contains(order.names);
}

void take(SceneStage& stage, const Look& look, const Variant& variant, const Order& order, const QString& name)
{
    Appearance& appearance = Appearance::shared();
    appearance.overrideDark(variant.dark);
    appearance.overrideHighContrast(variant.highContrast);
    appearance.overrideTextScale(variant.textScale);
    appearance.overrideMirrored(variant.mirrored ? std::optional(true) : std::nullopt);
    open(stage, look, variant.size);
    stage.settle();
    const QString file = order.folder.filePath(name);
    if (!(order.isGuide ? withPalette(stage.grab()).save(file, "PNG", 0) : stage.grab().save(file))) {
        std::fprintf(stderr, "cannot write %s\n", qPrintable(file));
    }
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    qputenv("QT_SCALE_FACTOR", "2");
    qputenv("TZ", "UTC");
    const QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationVersion(QStringLiteral(LODESTAR_VERSION));
    QGuiApplication::styleHints()->setUseHoverEffects(true); // as where there is a pointer
    const MainLoop mainLoop;
    QStringList arguments = QGuiApplication::arguments();
    const qsizetype language = arguments.indexOf(QStringLiteral("--language"));
    Languages::use({language > 0 ? arguments.value(language + 1) : QStringLiteral("en")});
    if (language > 0) {
        arguments.remove(language, qMin<qsizetype>(2, arguments.size() - language));
    }
    const bool tour = arguments.size() > 2 && arguments[1] == QLatin1String("--tour");
    const bool guide = arguments.size() > 2 && arguments[1] == QLatin1String("--guide");
    if (arguments.size() < 2 || (arguments[1].startsWith('-') && !tour && !guide)) {
        std::fprintf(stderr, "lodestar-screenshots FOLDER [TEXT]\nlodestar-screenshots --tour FOLDER\n"
                             "lodestar-screenshots --guide FOLDER\n");
        return 2;
    }
    Order order{QDir(arguments[tour || guide ? 2 : 1]), guide, {}, arguments.value(2)};
    order.folder.mkpath(QStringLiteral("."));
    SceneStage stage;
    if (tour) {
        return writeTourPictures(stage, order.folder) ? 0 : 1;
    }
    if (guide) {
        order.names = picturesOfPages(order.folder);
    }
    QSet<QString> drawn;
    for (const Look& look : everyLook()) {
        for (const Variant& variant : variantsOf(look)) {
            const QString name = QString::fromLatin1(look.name) + '-' + variant.suffix + ".png";
            if (order.wants(name)) {
                take(stage, look, variant, order, name);
                drawn.insert(name);
            }
        }
    }
    for (const QString& warning : stage.warnings()) {
        std::fprintf(stderr, "%s\n", qPrintable(warning));
    }
    return stage.warnings().isEmpty() && (!guide || finishGuide(order, drawn)) ? 0 : 1;
}
