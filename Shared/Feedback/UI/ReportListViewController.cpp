// SPDX-License-Identifier: Apache-2.0
#include "Feedback/UI/ReportListViewController.h"

#include "Feedback/UI/ReportViewController.h"
#include "Kit/Core/LineText.h"
#include "Kit/Core/NavigationController.h"

#include <QDateTime>
#include <QLocale>

#include <utility>

namespace lodestar
{

ReportListViewController::ReportListViewController(std::shared_ptr<const FeedbackSetup> setup)
    : m_setup(std::move(setup))
{
    setTitle(tr("Reports"));
    setScene(QUrl(QStringLiteral("qrc:/Lodestar/Feedback/ReportListScene.qml")));
}

void ReportListViewController::viewDidAppear()
{
    // Reads on the main thread: a few dozen small files are read faster than a spinner appears.
    m_reports = m_setup->store.list();
    Q_EMIT rowsChanged();
}

QVariantList ReportListViewController::rows() const
{
    QVariantList rows;
    for (const Report& report : m_reports) {
        const QDateTime made = QDateTime::fromString(QString::fromStdString(report.made), Qt::ISODate).toLocalTime();
        const QString kind = reportKindName(report.kind);
        const QString note = QString::fromStdString(report.note).trimmed().section('\n', 0, 0);
        rows << QVariant::fromValue(ReportRow{note.isEmpty() ? kind : kind + QStringLiteral(": ") + isolated(note),
                                              QLocale().toString(made.date(), QLocale::ShortFormat)});
    }
    return rows;
}

void ReportListViewController::open(int row)
{
    if (row < 0 || row >= static_cast<int>(m_reports.size())) {
        return;
    }
    const Result<ReportBundle> bundle = m_setup->store.read(m_reports[static_cast<std::size_t>(row)].identifier);
    if (bundle) {
        navigationController()->pushViewController(makeController<ReportViewController>(m_setup, bundle.value()),
                                                   Animated::Yes);
    } else {
        viewDidAppear(); // the report was deleted in the meantime
    }
}

} // namespace lodestar
