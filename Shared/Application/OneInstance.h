// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLocalServer>
#include <QPointer>
#include <QQuickWindow>

class QLocalSocket;

namespace lodestar
{

/// Claims the data folder for this process. False when the process is to end: standard error then says why, in one
/// line, and where another process has the folder, that one was asked to show its window.
bool claimDataFolder(const QString& folder);

/// Shows the window when a further start on the same data folder asks for it, through a socket in that folder, which
/// nobody else may enter. It listens from the first frame on, which is not to wait for it. Main thread.
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
