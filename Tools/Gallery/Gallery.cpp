// SPDX-License-Identifier: Apache-2.0
#include "Gallery.h"

namespace lodestar
{

GalleryController::GalleryController()
{
    rows[0] = {{"helios-01", "operating", Role::State::Good, ""},
               {"helios-02", "operating", Role::State::Good, "ms_lederror"},
               {"helios-03", "error", Role::State::Error, "ms_stateerror"},
               {"helios-04", "incomplete", Role::State::Alert, "ms_botherror"},
               {"atlas-ledger-archive-west-cold-storage-02", "standby", Role::State::Idle, ""}};
    rows[1] = {{"borealis-01", "not activated", Role::State::Off, ""},
               {"borealis-02", "Offline", Role::State::Offline, "", false}};
}

void GalleryController::viewDidLoad()
{
    setTitle(QStringLiteral("My Corvels"));
    m_tableView.setSeparatorInset(10, 15);
    m_tableView.setRowHeight(50);
    m_tableView.reloadData();
    m_status.setText(QStringLiteral("Please enter all fields"));
    m_status.setState(Role::State::Error);
    m_count.setText(QStringLiteral("4 / 6"));
    m_nameField.setText(QStringLiteral("Harbour C"));
    m_userField.setText(QStringLiteral("oversight"));
    m_userField.setEnabled(false);
    m_passwordField.setText(QStringLiteral("secret word"));
    m_flip.setOn(true);
}

std::optional<QString> GalleryController::titleForHeaderInSection(TableKind, int section) const
{
    return section == 1 ? std::optional<QString>(QStringLiteral("Second section")) : std::nullopt;
}

QVariant GalleryController::cellForRowAtIndexPath(TableKind, IndexPath indexPath)
{
    configured.push_back(indexPath);
    return QVariant::fromValue(rows[indexPath.section][static_cast<std::size_t>(indexPath.row)]);
}

void GalleryController::didSelectRowAtIndexPath(TableKind, IndexPath indexPath)
{
    selected.push_back(indexPath);
}

void GalleryController::swipeTapped(int section, int row, int button, bool leading)
{
    swiped.push_back(leading ? -button - 1 : button);
    if (button == 0 && !leading) {
        rows[section].erase(rows[section].begin() + row);
        m_tableView.deleteRow({section, row}, RowAnimation::Left);
    }
}

} // namespace lodestar
