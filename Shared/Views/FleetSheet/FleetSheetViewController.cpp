// SPDX-License-Identifier: Apache-2.0
#include "Views/FleetSheet/FleetSheetViewController.h"

#include "Controllers/REST/RESTHandler.h"
#include "Fleet/FleetSheet.h"
#include "Kit/Core/FileSaver.h"
#include "Views/Common/Scenes.h"
#include "Views/Corvels/CorvelListViewController.h"
#include "Views/FleetSheet/FleetFile.h"

#include <QLocale>
#include <QPointer>

namespace lodestar
{

FleetSheetViewController::FleetSheetViewController()
{
    setTitle(tr("Fleet Sheet"));
    setBackTitle(QStringLiteral(""));
}

void FleetSheetViewController::viewDidLoad()
{
    m_observation = NotificationCenter::defaultCenter().addObserver("CorvelsDidChange", [this] { show(); });
}

void FleetSheetViewController::viewDidAppear()
{
    show();
}

void FleetSheetViewController::show()
{
    const auto count = fleetSheetOf(RESTHandler::sharedInstance().corvelList()).rows.size();
    m_exportLabel.setText(tr("Export %Ln Consoles", nullptr, static_cast<int>(count)));
    m_exportLabel.setEnabled(count > 0);
    m_demoRow.setHidden(CorvelListViewController::hasDemo());
}

void FleetSheetViewController::importSheet()
{
    // The screen may be gone when the dialogue is answered.
    FleetFile::choose([screen = QPointer(this)](FleetFileInput file) {
        if (screen) {
            openScene(*screen, Scenes::fleetChooseView, std::move(file));
        }
    });
}

void FleetSheetViewController::importFile(const QUrl& url)
{
    openScene(*this, Scenes::fleetChooseView, FleetFile::read(url));
}

void FleetSheetViewController::exportSheet()
{
    FileSaver::save(QStringLiteral("fleet.csv"), [] {
        return QByteArray::fromStdString(csvOf(fleetSheetOf(RESTHandler::sharedInstance().corvelList())));
    });
}

void FleetSheetViewController::lookAtDemo()
{
    if (TabBarController* const tabs = tabBarController()) {
        bringBackDemo(*tabs);
    }
}

} // namespace lodestar
