// SPDX-License-Identifier: Apache-2.0
#include "Gallery.h"

#include "Kit/Core/UIColor+Tessel.h"

namespace lodestar
{

GalleryController::GalleryController()
{
    const QColor good = UIColor::successGreen();
    const QColor grey = UIColor::grayColor();
    rows[0] = {{"helios-01", "operating", "good", good, ""},
               {"helios-02", "operating", "good", good, "ms_lederror"},
               {"helios-03", "error", "error", UIColor::errorRed(), "ms_stateerror"},
               {"helios-04", "incomplete", "alert", UIColor::orangeColor(), "ms_botherror"},
               {"atlas-ledger-archive-west-cold-storage-02", "standby", "off", grey, ""}};
    rows[1] = {{"borealis-01", "not activated", "off", UIColor::failedRed(), ""},
               {"borealis-02", "Offline", "offline", grey, "", false}};
}

void GalleryController::viewDidLoad()
{
    setTitle(QStringLiteral("My Corvels"));
    m_tableView.setSeparatorInset(10, 15);
    m_tableView.setRowHeight(50);
    m_tableView.reloadData();
    m_status.setText(QStringLiteral("Please enter all fields"));
    m_status.setColor(UIColor::errorRed());
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
