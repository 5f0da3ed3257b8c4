// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Feedback/UI/FeedbackSetup.h"
#include "Kit/Core/ViewController.h"

#include <QVariantList>

namespace lodestar
{

/// A row of the list of reports.
struct ReportRow {
    Q_GADGET
    QML_VALUE_TYPE(reportRow)
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(QString time MEMBER time)

public:
    QString text; ///< the kind, and the note's first line if there is a note
    QString time; ///< the short local form
};

/// The reports on this device, youngest first.
class ReportListViewController : public lodestar::ViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by controllers")
    Q_PROPERTY(QVariantList rows READ rows NOTIFY rowsChanged)

public:
    explicit ReportListViewController(std::shared_ptr<const FeedbackSetup> setup);

    QVariantList rows() const;
    Q_INVOKABLE void open(int row);

Q_SIGNALS:
    void rowsChanged();

protected:
    void viewDidAppear() override;

private:
    std::shared_ptr<const FeedbackSetup> m_setup;
    std::vector<Report> m_reports;
};

} // namespace lodestar
