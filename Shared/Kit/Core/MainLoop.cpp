// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/MainLoop.h"

#include "Platform/Queues/MainQueue.h"

#include <QBasicTimer>
#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <QTimerEvent>

#include <chrono>

namespace lodestar
{

namespace
{

/// Half a frame: blocks of hundreds of consoles that come at once leave room for input and drawing.
constexpr std::chrono::milliseconds drainLimit{8};

QEvent::Type wakeType()
{
    static const int type = QEvent::registerEventType();
    return static_cast<QEvent::Type>(type);
}

/// An event posted before every drain: when a block runs a nested loop, that loop finds the event and drains the blocks
/// behind the running one.
QEvent::Type nestedType()
{
    static const int type = QEvent::registerEventType();
    return static_cast<QEvent::Type>(type);
}

} // namespace

class MainLoop::Receiver : public QObject
{
public:
    bool event(QEvent* event) override
    {
        if (event->type() != wakeType() && event->type() != nestedType()) {
            return QObject::event(event);
        }
        drain();
        return true;
    }

protected:
    void timerEvent(QTimerEvent* event) override
    {
        if (event->timerId() == m_rest.timerId()) {
            m_rest.stop();
            drain();
        }
    }

private:
    void drain()
    {
        QCoreApplication::postEvent(this, new QEvent(nestedType()));
        const bool blocksAreLeft = MainQueue::shared().drainFor(drainLimit);
        QCoreApplication::removePostedEvents(this, nestedType());
        if (blocksAreLeft) {
            // Not zero: the loop would run a zero timer only when it has nothing else to do, so never under an
            // animation.
            m_rest.start(1, Qt::PreciseTimer, this);
        }
    }

    QBasicTimer m_rest; ///< comes back for blocks that the time limit left
};

MainLoop::MainLoop() : m_receiver(std::make_unique<Receiver>())
{
    MainQueue::shared().adoptCurrentThread();
    // The queue may call this from any thread, but no longer once another function or none is set.
    MainQueue::shared().setWake(
        [receiver = m_receiver.get()] { QCoreApplication::postEvent(receiver, new QEvent(wakeType())); });
}

MainLoop::~MainLoop()
{
    MainQueue::shared().setWake(nullptr);
}

} // namespace lodestar
