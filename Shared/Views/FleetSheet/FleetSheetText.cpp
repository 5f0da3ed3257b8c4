// SPDX-License-Identifier: Apache-2.0
#include "Views/FleetSheet/FleetSheetText.h"

#include "Kit/Core/ErrorText.h"
#include "Kit/Core/LineText.h"
#include "Views/Common/CellText.h"
#include "Views/Common/ReasonText.h"

#include <QCoreApplication>
#include <QLocale>

namespace lodestar::FleetSheetText
{
namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(lodestar::FleetSheetText)
};

constexpr qsizetype longestTitle = 40;
constexpr std::size_t mostTitles = 3;

QString number(std::size_t count)
{
    return QLocale().toString(static_cast<qulonglong>(count));
}

/// "“a” and “b”", "“a”, “b” and “c”", "“a”, “b” and 2 more".
QString listOf(const std::vector<std::string>& titles)
{
    const auto quoted = [&titles](std::size_t i) {
        //: %1 a name
        return Words::tr("“%1”").arg(isolated(shortened(textOf(titles[i]), longestTitle)));
    };
    if (titles.size() == 1) {
        return quoted(0);
    }
    const std::size_t named = titles.size() > mostTitles ? mostTitles - 1 : titles.size() - 1;
    QString list = quoted(0);
    for (std::size_t i = 1; i < named; ++i) {
        //: %1 and %2 names
        list = Words::tr("%1, %2").arg(list, quoted(i));
    }
    return titles.size() > mostTitles
               //: %1 names, %n how many more there are
               ? Words::tr("%1 and %Ln more", nullptr, static_cast<int>(titles.size() - named)).arg(list)
               //: %1 and %2 names
               : Words::tr("%1 and %2").arg(list, quoted(named));
}

QString withCapital(const QString& text)
{
    return text.isEmpty() ? text : QLocale().toUpper(text.left(1)) + text.mid(1);
}

} // namespace

QString consoles(std::size_t count)
{
    return Words::tr("%Ln consoles", nullptr, static_cast<int>(count));
}

QString refusal(const Error& error)
{
    if (error.domain == sheetErrorDomain) {
        return Words::tr("There is no first line with name, address and user.");
    }
    if (error.domain == csvErrorDomain) {
        return error.code == csvTooLarge ? Words::tr("This file is too large for a fleet sheet.")
                                         : Words::tr("This is not a CSV file.");
    }
    return errorText(error);
}

QString notRead(const FleetSheet& sheet)
{
    QString text;
    if (!sheet.passwordColumns.empty()) {
        //: %1 titles of columns
        text = Words::tr("Passwords are never read from a sheet: %1 are left out.", nullptr,
                         static_cast<int>(sheet.passwordColumns.size()))
                   .arg(listOf(sheet.passwordColumns));
    }
    if (!sheet.unknownColumns.empty()) {
        //: %1 titles of columns
        const QString unknown = Words::tr("Not used: %1.").arg(listOf(sheet.unknownColumns));
        text = text.isEmpty() ? unknown : text + QLatin1Char('\n') + unknown;
    }
    return text;
}

QString unusable(const SheetRow& row)
{
    const QString line = number(row.line);
    switch (row.kind) {
    case SheetRowKind::NoAddress:
        return Words::tr("Row %1: no address").arg(line);
    case SheetRowKind::NoUser:
        return Words::tr("Row %1: no user").arg(line);
    case SheetRowKind::SameAddress:
        return Words::tr("Row %1: the same address as row %2").arg(line, number(row.sameAs));
    default:
        return Words::tr("Row %1: not an address").arg(line);
    }
}

QString stateWord(FleetImport::State state)
{
    switch (state) {
    case FleetImport::State::Waiting:
        return Words::tr("waiting");
    case FleetImport::State::Verifying:
        return Words::tr("verifying");
    case FleetImport::State::Gathering:
        return Words::tr("gathering");
    case FleetImport::State::Verified:
        return Words::tr("verified");
    case FleetImport::State::Refused:
        return Words::tr("refused");
    case FleetImport::State::NoAnswer:
        return Words::tr("no answer");
    case FleetImport::State::NoSuchAddress:
        return Words::tr("no address");
    case FleetImport::State::Failed:
        break;
    }
    return Words::tr("not verified");
}

Role::State roleOf(FleetImport::State state)
{
    switch (state) {
    case FleetImport::State::Verified:
        return Role::State::Good;
    case FleetImport::State::Refused:
    case FleetImport::State::Failed:
        return Role::State::Error;
    case FleetImport::State::NoAnswer:
    case FleetImport::State::NoSuchAddress:
        return Role::State::Offline;
    default:
        return Role::State::Waiting;
    }
}

QString note(const FleetImport::Row& row)
{
    if (row.error) {
        return withCapital(reasonText(*row.error));
    }
    return row.missingFeeds > 0 ? Words::tr("%Ln of 6 missing", nullptr, static_cast<int>(row.missingFeeds))
                                : textOf(row.version);
}

QString timeLeft(std::optional<std::chrono::seconds> left)
{
    constexpr std::chrono::minutes minute{1};
    if (!left) {
        return Words::tr("tried");
    }
    return *left <= minute ? Words::tr("tried, about %Ln s left", nullptr, static_cast<int>(left->count()))
                           : Words::tr("tried, about %Ln min left", nullptr, static_cast<int>(*left / minute));
}

} // namespace lodestar::FleetSheetText
