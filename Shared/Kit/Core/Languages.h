// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

/// The language that the screens speak. Main thread, with a QGuiApplication.
namespace lodestar::Languages
{

/// Their codes, English first.
QStringList all();

/// Speaks the first of the wanted languages that there is, or English, until the next call: texts, plural forms,
/// numbers, dates and the direction of reading. To be called before a screen is made, which keeps the texts that it
/// began with. The codes are as QLocale::uiLanguages() has them: "de-AT", "de".
void use(const QStringList& wanted);

/// The code of the language that was chosen last; English before.
QString current();

} // namespace lodestar::Languages
