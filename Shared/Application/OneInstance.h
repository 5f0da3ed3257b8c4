// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLocalServer>
#include <QPointer>
#include <QQuickWindow>

class QLocalSocket;

namespace lodestar
{

/// Claims the data folder for this process. When this is false, the process must end: one line on standard error says
/// why. If another process has the folder, that process has been asked to show its window.
bool claimDataFolder(const QString& folder);

/// Shows the window when another start on the same data folder asks for it through a socket in that folder, which only
/// this user may enter. Listens from the first frame on, so that the frame need not wait. Main thread.
class OneInstance : public QObject
{
    Q_OBJECT

public:
    OneInstance(QQuickWindow& window, const QString& folder);

private:
    void listen();
    void answer();
    void showWindow(QLocalSocket& asker);

    QPointer<QQuickWindow> m_window;
    QString m_socket;
    QLocalServer m_server;
};

} // namespace lodestar
