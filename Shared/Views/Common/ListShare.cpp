// SPDX-License-Identifier: Apache-2.0
#include "Views/Common/ListShare.h"

#include "Kit/Core/Clipboard.h"
#include "Kit/Core/FileSaver.h"

#include <utility>

namespace lodestar
{
namespace
{

enum Choice { SaveChoice, CopyChoice, CancelChoice };

} // namespace

ListShare::ListShare(std::function<QString()> name, std::function<Table()> table)
    : m_name(std::move(name)), m_table(std::move(table))
{
}

void ListShare::present()
{
    m_menu.present(tr("Save list as CSV"), {},
                   {{.title = tr("Save as File"), .imageName = QStringLiteral("file")},
                    {.title = tr("Copy"), .imageName = QStringLiteral("copy")},
                    {.title = tr("Cancel")}},
                   CancelChoice, [this](int choice) {
                       if (choice == SaveChoice) {
                           save();
                       } else if (choice == CopyChoice) {
                           copy();
                       }
                   });
}

void ListShare::save()
{
    // The rows of this moment: the list may be closed, or show other rows, by the time that the person has chosen a
    // place.
    FileSaver::save(m_name() + QStringLiteral(".csv"),
                    [table = m_table()] { return QByteArray::fromStdString(csvOf(table)); });
}

void ListShare::copy()
{
    const Table table = m_table();
    const auto rows = static_cast<int>(table.rows.size());
    Clipboard::copy(QString::fromStdString(csvOf(table)), tr("%Ln rows", nullptr, rows));
}

} // namespace lodestar
