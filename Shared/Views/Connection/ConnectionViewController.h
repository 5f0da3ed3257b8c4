// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/ViewController.h"
#include "Views/Common/CorvelReceiving.h"
#include "Views/Common/ReadingWatch.h"
#include "Views/Common/TitleHeader.h"
#include "Views/Connection/ConnectionContent.h"

#include <memory>

namespace lodestar
{

/// How a console was reached at the last attempt, stage by stage, and what to try where that failed. It follows the
/// console's reading while it is seen; of a console that was deleted meanwhile it goes on showing what it shows. Main
/// thread.
class ConnectionViewController : public lodestar::ViewController, public CorvelReceiving
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")
    Q_PROPERTY(lodestar::TitleHeader* header READ header CONSTANT)
    Q_PROPERTY(QList<lodestar::ConnectionSection> sections READ sections NOTIFY sectionsChanged)
    Q_PROPERTY(bool updating READ isUpdating NOTIFY refreshChanged)
    Q_PROPERTY(bool refreshable READ isRefreshable NOTIFY refreshChanged)

public:
    TitleHeader* header() { return &m_header; }
    const ConnectionContent& sections() const { return m_sections; }
    /// Whether a refresh of the console is under way.
    bool isUpdating() const { return m_updating; }
    /// Whether the console can be refreshed: it is registered, and no refresh is under way.
    bool isRefreshable() const { return m_refreshable; }

    /// Refreshes this console as the list's pull does with all.
    Q_INVOKABLE void refresh();
    /// Puts the whole screen on the clipboard as plain text. Nothing on it is secret.
    Q_INVOKABLE void copyAll();

Q_SIGNALS:
    void sectionsChanged();
    void refreshChanged();

protected:
    void viewDidLoad() override;
    void viewDidAppear() override;
    void viewDidDisappear() override;

private:
    void show();

    TitleHeader m_header;
    ConnectionContent m_sections;
    std::shared_ptr<const Reading> m_reading;
    bool m_updating = false;
    bool m_refreshable = false;
    ReadingWatch m_watch;
};

} // namespace lodestar
