// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/MainLoop.h"

#include "Platform/Queues/MainQueue.h"

#include <QCoreApplication>
#include <QEvent>

namespace lodestar
{

namespace
{

/// Posted events are the one way into a Qt loop that any thread may take.
class Drain : public QObject
{
public:
    using QObject::QObject;
    static QEvent::Type eventType()
    {
        static const int type = QEvent::registerEventType();
        return static_cast<QEvent::Type>(type);
    }

protected:
    bool event(QEvent* event) override
    {
        if (event->type() == eventType()) {
            MainQueue::shared().drain();
            return true;
        }
        return QObject::event(event);
    }
};

} // namespace

void installMainLoop()
{
    MainQueue& queue = MainQueue::shared();
    queue.adoptCurrentThread();
    QCoreApplication* application = QCoreApplication::instance();
    auto* drain = new Drain(application);
    QObject::connect(application, &QObject::destroyed, application, [] { MainQueue::shared().setWake({}); });
    queue.setWake([drain] { QCoreApplication::postEvent(drain, new QEvent(Drain::eventType())); });
    // What was queued before there was a loop woke nobody.
    QCoreApplication::postEvent(drain, new QEvent(Drain::eventType()));
}

} // namespace lodestar
