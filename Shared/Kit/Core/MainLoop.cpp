// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/MainLoop.h"

#include "Platform/Queues/MainQueue.h"

#include <QCoreApplication>
#include <QEvent>
#include <QObject>

namespace lodestar
{

namespace
{

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
        QCoreApplication::postEvent(this, new QEvent(nestedType()));
        MainQueue::shared().drain();
        QCoreApplication::removePostedEvents(this, nestedType());
        return true;
    }
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
