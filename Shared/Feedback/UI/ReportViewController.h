// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Feedback/UI/FeedbackSetup.h"
#include "Feedback/UI/Sketch.h"
#include "Kit/Core/Menu.h"
#include "Kit/Core/ViewController.h"

#include <QStringList>

namespace lodestar
{

/// A report's texts and picture, to be read: before it is sent, with the button that sends it; or one that was kept,
/// with the ways to hand it on, to delete it and, in a build that has an address, to send it.
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
    /// Of a report that is not kept yet.
    ReportViewController(const QString& title, const QString& text);
    /// Of one that is.
    ReportViewController(std::shared_ptr<const FeedbackSetup> setup, const ReportBundle& bundle);

    const QStringList& lines() const { return m_lines; }
    /// Null without one.
    Sketch* picture() const { return m_picture; }
    bool isKept() const { return m_setup != nullptr; }
    const QString& actionTitle() const { return m_actionTitle; }
    MenuOutlet* alert() const { return m_alert; }
    /// The button at the end of the bar; before the screen is shown.
    void setAction(const QString& title, std::function<void()> action);
    /// For a screen that nothing lies beneath: what takes it away, also once the report was sent or deleted. Before the
    /// screen is shown.
    void setClose(std::function<void()> close) { m_close = std::move(close); }
    bool closes() const { return m_close != nullptr; }

    /// Leaves, wherever that leads.
    Q_INVOKABLE void leave();
    Q_INVOKABLE void act();
    /// Writes the report as an archive where the person finds it, and says where.
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
