// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/ViewController.h"
#include "Views/Attention/FleetEventList.h"

#include <QStringList>

#include <memory>

namespace lodestar
{

/// All events, the newest first.
inline const EventChoice wholeList{.order = EventOrder::NewestFirst};

/// What the sheet chooses from, and where its choices go. Which consoles are shown is the tab's filter's.
class EventChoosing
{
public:
    virtual ~EventChoosing() = default;
    virtual const EventChoice& choice() const = 0;
    virtual void setChoice(EventChoice choice) = 0;
    virtual const FleetEventList& list() const = 0;
    virtual void endChoosing() = 0;
};

/// The sheet Order of the events: their order, and what to leave out. Each choice works at once.
class EventOrderViewController : public lodestar::ViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the events")
    Q_PROPERTY(QStringList orders READ orders CONSTANT)
    Q_PROPERTY(int order READ order WRITE setOrder NOTIFY choiceChanged)
    Q_PROPERTY(bool openOnly READ openOnly WRITE setOpenOnly NOTIFY choiceChanged)
    Q_PROPERTY(bool callHomeOnly READ callHomeOnly WRITE setCallHomeOnly NOTIFY choiceChanged)
    Q_PROPERTY(int openCount READ openCount NOTIFY choiceChanged)
    Q_PROPERTY(int callHomeCount READ callHomeCount NOTIFY choiceChanged)

public:
    explicit EventOrderViewController(std::shared_ptr<EventChoosing> events);

    /// The name of an order: "By reference code".
    static QString nameOf(EventOrder order);
    double height() const;

    QStringList orders() const;
    int order() const;
    void setOrder(int order);
    bool openOnly() const;
    void setOpenOnly(bool on);
    bool callHomeOnly() const;
    void setCallHomeOnly(bool on);
    int openCount() const;
    int callHomeCount() const;
    Q_INVOKABLE void reset();
    Q_INVOKABLE void done();

Q_SIGNALS:
    void choiceChanged();

private:
    template <typename Change>
    void change(Change how);

    const std::shared_ptr<EventChoosing> m_events;
};

} // namespace lodestar
