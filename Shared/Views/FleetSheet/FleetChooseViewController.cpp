// SPDX-License-Identifier: Apache-2.0
#include "Views/FleetSheet/FleetChooseViewController.h"

#include "Kit/Core/LineText.h"
#include "Platform/Queues/DispatchQueue.h"
#include "Platform/Queues/MainQueue.h"
#include "Views/FleetSheet/FleetFile.h"
#include "Views/FleetSheet/FleetSheetText.h"

#include <QLocale>
#include <QPointer>

#include <algorithm>
#include <utility>

namespace lodestar
{
namespace
{

QString number(std::size_t count)
{
    return QLocale().toString(static_cast<qulonglong>(count));
}

std::vector<SheetRow> newRowsOf(const FleetSheet& sheet)
{
    std::vector<SheetRow> rows;
    std::ranges::copy_if(sheet.rows, std::back_inserter(rows),
                         [](const SheetRow& row) { return row.kind == SheetRowKind::New; });
    return rows;
}

} // namespace

FleetChooseViewController::FleetChooseViewController()
{
    setTitle(tr("Import Fleet Sheet"));
    setBackTitle(QStringLiteral(""));
    m_sheetCard.setHidden(true);
    m_verifyLabel.setHidden(true);
    m_notReadLabel.setHidden(true);
    connect(&m_passwords, &FleetPasswords::typedChanged, this,
            [this] { m_verifyLabel.setEnabled(m_passwords.areWhole()); });
}

void FleetChooseViewController::setFile(FleetFileInput file)
{
    const int turn = ++m_turn;
    m_fileLabel.setText(oneLine(file.name));
    DispatchQueue::globalBackground().async([screen = self<FleetChooseViewController>(), turn,
                                             bytes = std::move(file.bytes), registered = registeredAddresses()] {
        auto sheet = std::make_shared<const Result<FleetSheet>>(
            *bytes ? readFleetSheet({bytes->value().constData(), static_cast<std::size_t>(bytes->value().size())},
                                    registered)
                   : Result<FleetSheet>(bytes->error()));
        MainQueue::shared().async([screen, turn, sheet] {
            if (screen->m_turn == turn) {
                screen->show(*sheet);
            }
        });
    });
}

void FleetChooseViewController::show(const Result<FleetSheet>& sheet)
{
    m_sheet = sheet ? std::make_shared<const FleetSheet>(sheet.value()) : nullptr;
    m_foundLabel.setState(sheet ? Role::State::None : Role::State::Alert);
    m_foundLabel.setText(sheet ? tr("Name, address and user were found in its first line.")
                               : FleetSheetText::refusal(sheet.error()));
    m_sheetCard.setHidden(!sheet);
    m_rowsLabel.setText({});
    m_notReadLabel.setHidden(true);
    m_verifyLabel.setHidden(true);
    m_passwords.setRows(sheet ? newRowsOf(*m_sheet) : std::vector<SheetRow>());
    if (!sheet) {
        return;
    }
    const std::size_t rows = m_sheet->rows.size();
    m_rowsLabel.setText(tr("%Ln rows", nullptr, static_cast<int>(rows)));
    const QString notRead = FleetSheetText::notRead(*m_sheet);
    m_notReadLabel.setText(notRead);
    m_notReadLabel.setHidden(notRead.isEmpty());
    const std::size_t added = m_sheet->count(SheetRowKind::New);
    m_newLabel.setText(number(added));
    m_registeredLabel.setText(number(m_sheet->count(SheetRowKind::RegisteredAlready)));
    m_unusableLabel.setText(number(m_sheet->unusable()));
    m_unusableLabel.setState(m_sheet->unusable() > 0 ? Role::State::Alert : Role::State::None);
    m_verifyLabel.setText(tr("Verify %Ln Consoles", nullptr, static_cast<int>(added)));
    m_verifyLabel.setHidden(added == 0);
    m_verifyLabel.setEnabled(false);
}

void FleetChooseViewController::chooseAnother()
{
    FleetFile::choose([screen = QPointer(this)](FleetFileInput file) {
        if (screen) {
            screen->setFile(std::move(file));
        }
    });
}

void FleetChooseViewController::importFile(const QUrl& url)
{
    setFile(FleetFile::read(url));
}

void FleetChooseViewController::openUnusable()
{
    if (m_sheet && m_sheet->unusable() > 0) {
        openScene(*this, Scenes::fleetUnusableView, m_sheet);
    }
}

void FleetChooseViewController::verify()
{
    if (!m_sheet || !m_passwords.areWhole()) {
        return;
    }
    endEditing();
    openScene(*this, Scenes::fleetVerifyView, std::make_shared<FleetImport>(*m_sheet, m_passwords.typed()));
}

} // namespace lodestar
