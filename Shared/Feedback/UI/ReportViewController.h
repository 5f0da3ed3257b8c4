// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Feedback/UI/FeedbackSetup.h"
#include "Feedback/UI/Sketch.h"
#include "Kit/Core/Menu.h"
#include "Kit/Core/ViewController.h"

#include <QStringList>

namespace lodestar
{

/// "Feedback" or "Crash".
QString reportKindName(Report::Kind kind);

/// A report's texts and picture, to be read. Before a report is sent, the screen has the button that sends it. For a
/// kept report it has buttons to export, to delete and, in a build with an address, to send.
class ReportViewController : public lodestar::ViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by controllers")
    Q_PROPERTY(QStringList lines READ lines CONSTANT)
    Q_PROPERTY(lodestar::Sketch* picture READ picture CONSTANT)
    Q_PROPERTY(QString actionTitle READ actionTitle CONSTANT)
    Q_PROPERTY(bool kept READ isKept CONSTANT)
    Q_PROPERTY(bool closes READ closes CONSTANT)
    Q_PROPERTY(lodestar::MenuOutlet* alert READ alert CONSTANT)

public:
    /// Shows a report that is not kept yet.
    ReportViewController(const QString& title, const QString& text);
    /// Shows a kept report.
    ReportViewController(std::shared_ptr<const FeedbackSetup> setup, const ReportBundle& bundle);

    const QStringList& lines() const { return m_lines; }
    /// Null for a report without a picture.
    Sketch* picture() const { return m_picture; }
    bool isKept() const { return m_setup != nullptr; }
    const QString& actionTitle() const { return m_actionTitle; }
    MenuOutlet* alert() const { return m_alert; }
    /// The button at the end of the bar. Call it before the screen is shown.
    void setAction(const QString& title, std::function<void()> action);
    /// For a screen with none beneath: `close` removes it, also after the report was sent or deleted. Call it before
    /// the screen is shown.
    void setClose(std::function<void()> close) { m_close = std::move(close); }
    bool closes() const { return m_close != nullptr; }

    /// Closes the screen, or goes back to the one beneath.
    Q_INVOKABLE void leave();
    Q_INVOKABLE void act();
    /// Writes the report as an archive to a place where the person finds it, and names that place.
    Q_INVOKABLE void exportReport();
    Q_INVOKABLE void deleteReport();

private:
    void offerSending(const ReportBundle& bundle);

    std::shared_ptr<const FeedbackSetup> m_setup;
    std::string m_identifier;
    QStringList m_lines;
    Sketch* m_picture = nullptr;
    QString m_actionTitle;
    std::function<void()> m_action;
    std::function<void()> m_close;
    MenuOutlet* m_alert = new MenuOutlet(this);
};

} // namespace lodestar
