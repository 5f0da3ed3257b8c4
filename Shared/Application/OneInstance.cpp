// SPDX-License-Identifier: Apache-2.0
#include "Application/OneInstance.h"

#include "Application/Model/DataFolder.h"
#include "Application/WindowPlace.h"
#include "Feedback/VireoLogger.h"

#include <QLocalSocket>

#include <cstdio>

namespace lodestar
{
namespace
{

constexpr std::string_view ownFile = "Shared/Application/OneInstance";
constexpr auto token = "XDG_ACTIVATION_TOKEN"; ///< set by the desktop for a start that may take the keyboard focus
constexpr qint64 longestToken = 256;
constexpr int patience = 1000; ///< milliseconds

QString socketIn(const QString& folder)
{
    return folder + QStringLiteral("/Lodestar.window");
}

void askForWindow(const QString& folder)
{
    QLocalSocket socket;
    socket.connectToServer(socketIn(folder), QIODevice::WriteOnly);
    if (socket.waitForConnected(patience)) {
        socket.write(qgetenv(token).left(longestToken) + '\n');
        socket.waitForBytesWritten(patience);
    }
}

} // namespace

bool claimDataFolder(const QString& folder)
{
    switch (DataFolder::claim(folder.toStdString())) {
    case FolderClaim::Ours:
        return true;
    case FolderClaim::Taken:
        std::fputs("Lodestar is running already.\n", stderr);
        askForWindow(folder);
        return false;
    case FolderClaim::Foreign:
        std::fprintf(stderr, "Lodestar keeps nothing in a folder of another user: %s\n", qPrintable(folder));
        return false;
    case FolderClaim::NoLock:
        std::fprintf(stderr, "Lodestar cannot lock its folder: Lodestar.lock in %s is no file of yours.\n",
                     qPrintable(folder));
        return false;
    }
    return false;
}

OneInstance::OneInstance(QQuickWindow& window, const QString& folder) : m_window(&window), m_socket(socketIn(folder))
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, &OneInstance::answer);
    connect(&window, &QQuickWindow::frameSwapped, this, &OneInstance::listen,
            static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
}

void OneInstance::listen()
{
    QLocalServer::removeServer(m_socket); // left by a process that was killed: the folder is ours alone
    if (!m_server.listen(m_socket)) {
        LODESTAR_LOG(ownFile, "listen", "a further start cannot show this window: {}",
                     m_server.errorString().toStdString());
    }
}

void OneInstance::answer()
{
    while (QLocalSocket* const socket = m_server.nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] { showWindow(*socket); });
        if (socket->bytesAvailable() > 0) {
            showWindow(*socket);
        }
    }
}

void OneInstance::showWindow(QLocalSocket& asker)
{
    const QByteArray line = asker.readLine(longestToken + 2).trimmed();
    asker.disconnectFromServer();
    if (m_window == nullptr) {
        return;
    }
    if (!line.isEmpty()) {
        qputenv(token, line);
    }
    bringToFront(*m_window);
}

} // namespace lodestar
