// SPDX-License-Identifier: Apache-2.0
#include "Views/ManagedSystems/MSDetailViewController.h"

#include "Inventory/ManagedSystem.h"
#include "Views/Common/CellText.h"
#include "Views/Common/ScreenLog.h"
#include "Views/Report/ServiceReportController.h"

#include <QDesktopServices>

#include <utility>

namespace lodestar
{
namespace
{

constexpr ScreenLog screenLog("Shared/Views/ManagedSystems/MSDetailViewController");
constexpr auto populate = "populateSystemDetails";

constexpr IndexPath referenceCodeRow = {0, 2};

} // namespace

MSDetailViewController::MSDetailViewController(QString documentationBase)
    : m_documentationBase(std::move(documentationBase))
{
    setSectionTitles({tr("Main Information"), tr("Model & Serial Information"), tr("Processor Information"),
                      tr("Memory Information")});
}

void MSDetailViewController::viewDidLoad()
{
    screenLog.write(23, "viewDidLoad", "MSDetailViewController instantiation");
    setTitle(textOf(ManagedSystem(rootXML()).name()));
    setBackTitle(QStringLiteral(""));
    m_source = reportSource(rootXML(), ManagedSystem::type);
    populateSystemDetails();
}

void MSDetailViewController::openReport()
{
    ServiceReportController::present(reportOf(ManagedSystem(rootXML()), m_source), shared_from_this());
}

void MSDetailViewController::populateSystemDetails()
{
    const ManagedSystem system(rootXML());
    // The prefix is another screen's name. It must stay, because logs are searched for these lines.
    screenLog.write(47, populate, "DeltaCorvelViewController: Fetching Main Items");
    DetailSection main{row(tr("IP Address"), system.primaryIPAddress()), row(tr("Status"), system.state()),
                       row(tr("Reference Code"), system.referenceCode()),
                       row(tr("Attention LED On"), system.attentionLEDState())};

    screenLog.write(58, populate, "DeltaCorvelViewController: Fetching MTSM");
    DetailSection serial = modelAndSerial(system.identity());

    screenLog.write(69, populate, "DeltaCorvelViewController: Fetching Processor Information");
    DetailSection processor{row(tr("Available Processing Units"), system.availableProcessingUnits())};

    screenLog.write(78, populate, "DeltaCorvelViewController: Fetching Memory Information");
    DetailSection memorySection{row(tr("Available Memory"), shownText(system.availableMemory()) + " MB")};

    setTableData({std::move(main), std::move(serial), std::move(processor), std::move(memorySection)});
}

bool MSDetailViewController::leadsOn(IndexPath indexPath) const
{
    return !m_documentationBase.isEmpty() && indexPath == referenceCodeRow &&
           valueAt(indexPath) != QLatin1String("(null)");
}

void MSDetailViewController::openRow(IndexPath indexPath)
{
    const QByteArray code = QUrl::toPercentEncoding(valueAt(indexPath));
    QDesktopServices::openUrl(QUrl(m_documentationBase + QString::fromLatin1(code)));
}

QString MSDetailViewController::builtDocumentationBase()
{
    return QStringLiteral(LODESTAR_REFERENCE_CODE_ADDRESS);
}

} // namespace lodestar
