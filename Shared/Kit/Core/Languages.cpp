// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/Languages.h"

#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <memory>

namespace lodestar
{
namespace
{

/// Qt's own texts, and over them ours.
struct Translators {
    QString language;
    QTranslator qt;
    QTranslator lodestar;
};

std::unique_ptr<Translators>& translators()
{
    static std::unique_ptr<Translators> installed;
    return installed;
}

QString firstOf(const QStringList& wanted)
{
    const QStringList all = Languages::all();
    for (const QString& each : wanted) {
        QString language = each.section(QLatin1Char('-'), 0, 0).section(QLatin1Char('_'), 0, 0).toLower();
        if (all.contains(language)) {
            return language;
        }
    }
    return all.front();
}

/// The person's own locale where it speaks this language; otherwise that of the same country in this language, so that
/// the names of months fit the sentences around them.
QLocale localeOf(const QString& language)
{
    const QLocale system = QLocale::system();
    const QLocale::Language spoken = QLocale(language).language();
    const bool isPlain = system.language() == QLocale::C && spoken == QLocale::English;
    const QLocale locale = isPlain || system.language() == spoken ? system : QLocale(spoken, system.territory());
    // What consoles send, and most of what stands beside it, has European digits. A screen with two kinds is hard to
    // read.
    return locale.zeroDigit() == QLatin1String("0") ? locale : QLocale(spoken, QLocale::UnitedArabEmirates);
}

} // namespace

QStringList Languages::all()
{
    return {QStringLiteral("en"), QStringLiteral("de"), QStringLiteral("fr"),
            QStringLiteral("es"), QStringLiteral("ja"), QStringLiteral("ar")};
}

QString Languages::current()
{
    return translators() ? translators()->language : all().front();
}

void Languages::use(const QStringList& wanted)
{
    const QString language = firstOf(wanted);
    const QLocale locale = localeOf(language);
    QLocale::setDefault(locale);
    auto next = std::make_unique<Translators>();
    next->language = language;
    if (next->qt.load(QStringLiteral("qtbase_") + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&next->qt);
    }
    // English has one, too: its plural forms.
    if (next->lodestar.load(QStringLiteral(":/languages/lodestar_%1.qm").arg(language))) {
        QCoreApplication::installTranslator(&next->lodestar);
    } else {
        qWarning("The texts in the language %s cannot be read", qPrintable(language));
    }
    translators() = std::move(next);
    // Without windows there is no direction to set, and Qt would take the application for one that has them.
    if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr) {
        QGuiApplication::setLayoutDirection(QLocale(language).textDirection());
    }
}

} // namespace lodestar
