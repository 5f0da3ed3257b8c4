// SPDX-License-Identifier: Apache-2.0
#include "Application/TerminationSignals.h"

#include <QSocketNotifier>

#include <utility>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#endif

namespace lodestar
{

#ifdef Q_OS_UNIX

namespace
{

constexpr int endingSignals[] = {SIGTERM, SIGINT, SIGHUP};

// A signal handler may do little more than write; the main loop reads.
int signalPipe[2] = {-1, -1};

void noteSignal(int)
{
    const int interrupted = errno;
    const char one = 1;
    [[maybe_unused]] const ssize_t written = ::write(signalPipe[1], &one, 1);
    errno = interrupted;
}

} // namespace

TerminationSignals::TerminationSignals(std::function<void()> terminate) : m_terminate(std::move(terminate))
{
    if (::pipe(signalPipe) != 0) {
        return;
    }
    for (const int end : signalPipe) {
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
        ::fcntl(end, F_SETFL, O_NONBLOCK);
    }
    m_notifier = std::make_unique<QSocketNotifier>(signalPipe[0], QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, [this] {
        m_notifier->setEnabled(false);
        m_terminate();
    });
    struct sigaction action = {};
    action.sa_handler = &noteSignal;
    action.sa_flags = SA_RESTART;
    for (const int signal : endingSignals) {
        ::sigaction(signal, &action, nullptr);
    }
}

TerminationSignals::~TerminationSignals()
{
    for (const int signal : endingSignals) {
        ::signal(signal, SIG_DFL);
    }
    m_notifier.reset();
    ::close(signalPipe[0]);
    ::close(signalPipe[1]);
}

#else

TerminationSignals::TerminationSignals(std::function<void()> terminate) : m_terminate(std::move(terminate)) {}
TerminationSignals::~TerminationSignals() = default;

#endif

} // namespace lodestar
